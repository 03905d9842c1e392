#pragma once

#include "viewcontroller.h"

#include <QUrl>
#include <QVariantList>

#include <optional>

class BGVideoContentCategoryPagerVC;
class Storyboard;
class VideoPickFlow;
struct PickerServices;

/**
 * "Pick your own" of the background videos: the user's own movie, trimmed to at most 25 seconds and
 * cached, becomes the movie of the video editor under the pager (`vcTag` 1 or 2), or of a new video design
 * made from the pager's blank document (`isCreateOwn`).
 */
class AddNewBGVideoVC : public ViewController
{
    Q_OBJECT
    /** The rows: maps with "title" and "image" (the name of the row's icon). */
    Q_PROPERTY(QVariantList rows READ rows CONSTANT)
    /** A picked movie is on its way. */
    Q_PROPERTY(bool isPreparing READ isPreparing NOTIFY isPreparingChanged)
public:
    /** The longest part of a movie that the trimmer keeps here, in seconds. */
    static constexpr double videoMaximumDuration = 25.0;

    explicit AddNewBGVideoVC(QObject *parent = nullptr);

    void setServices(const PickerServices &services);
    [[nodiscard]] QVariantList rows() const;
    [[nodiscard]] bool isPreparing() const { return m_preparing; }

    /** "Gallery" opens the gallery. */
    Q_INVOKABLE void selectRow(int row);
    /** The gallery's movie: a copy in the temporary folder, the trimmer, the video cache, then the editor. */
    Q_INVOKABLE void pickedFile(const QUrl &file);
    /** Where the cached movie goes: back to the editor under the pager, or into a new design. */
    void openCachedVideo(const QUrl &video);

Q_SIGNALS:
    /** The view opens the gallery. */
    void galleryRequested();
    void isPreparingChanged();

private:
    [[nodiscard]] BGVideoContentCategoryPagerVC *pager() const;
    void setPreparing(bool preparing);

    const Storyboard *m_storyboard = nullptr;
    VideoPickFlow *const m_pickFlow;
    bool m_preparing = false;
};
