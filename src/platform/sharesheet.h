#pragma once

#include <QImage>
#include <QString>

class AlertModel;

/**
 * The system's share sheet on the desktop, where no sharing services exist: the file goes to the
 * clipboard (as a file and, for a picture, as the picture itself), is shown in its folder by the file
 * manager, or is opened by the application the system has for it.
 */
namespace ShareSheet {
/** The sheet, ready to present: "Copy", "Show in Folder", "Open" and "Cancel". */
[[nodiscard]] AlertModel *make(const QString &file, const QImage &picture = {});
void copyToClipboard(const QString &file, const QImage &picture = {});
/** Opens the file's folder in the file manager; false when nothing could open it. */
bool revealInFolder(const QString &file);
/** Opens the file with the system's handler for its type; false when there is none. */
bool openWithSystem(const QString &file);
} // namespace ShareSheet
