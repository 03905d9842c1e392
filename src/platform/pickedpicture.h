#pragma once

#include <QImage>
#include <QUrl>

#include <functional>

class AlertModel;
class QObject;

/** A picture file the user picked from the file dialog, read without holding up the screen. */
namespace PickedPicture {
/**
 * Decodes `file` on the thread pool, then calls `done` on `context`'s thread with the picture, or with a
 * null image when the file is no picture that can be opened. Nothing is called once `context` is gone.
 */
void decode(QObject *context, const QUrl &file, std::function<void(const QImage &picture)> done);
/** The alert for a file that is no picture. */
[[nodiscard]] AlertModel *notAPictureAlert();
} // namespace PickedPicture
