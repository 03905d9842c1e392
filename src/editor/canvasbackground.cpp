#include "canvasbackground.h"

#include "backgroundimageview.h"
#include "designpictures.h"
#include "editorsession.h"
#include "hexcolor.h"
#include "picturefile.h"
#include "saveflow.h"
#include "undorecorder.h"

using DesignPictures::nonEmpty;

namespace {

QImage oriented(const QImage &picture, CanvasBackground::Orientation orientation)
{
    switch (orientation) {
    case CanvasBackground::Orientation::UpMirrored:
        return picture.mirrored(true, false);
    case CanvasBackground::Orientation::Down:
        return picture.mirrored(true, true);
    case CanvasBackground::Orientation::Up:
        break;
    }
    return picture;
}

} // namespace

CanvasBackground::CanvasBackground(EditorSession &session)
    : m_session(session)
{ }

void CanvasBackground::apply(std::shared_ptr<BackgroundJson> record)
{
    if (m_session.masterJson)
        m_session.masterJson->changed_background_json = nullptr;
    BackgroundImageView *view = m_session.backgroundImageView;
    view->backgroundJson = record;
    view->clearBackground();
    showPicture(QImage());
    bgGradientArray.clear();
    bgPatternImage = QImage();
    defaultBgColor.reset();
    if (!record)
        return;
    const Json *document = m_session.masterJson.get();
    if (nonEmpty(record->background_color)) {
        view->setBackgroundColor(HexColor::fromString(*record->background_color));
        defaultBgColor = view->backgroundColor();
    }
    if (nonEmpty(record->texture_image)) {
        // A picture that arrives after the background has changed again is dropped.
        DesignPictures::show(document, *record->texture_image, view, [this, view, record](const QImage &picture) {
            if (view->backgroundJson != record)
                return;
            bgPatternImage = picture;
            view->setPatternColor(picture);
        });
    }
    if (record->gradient_colors && !record->gradient_colors->isEmpty()) {
        bgGradientArray = *record->gradient_colors;
        QList<QColor> colors;
        for (const QString &hex : std::as_const(bgGradientArray))
            colors.append(HexColor::fromString(hex));
        view->setGradient(colors);
    }
    if (nonEmpty(record->background_image) && !m_session.video()) {
        DesignPictures::show(document, *record->background_image, view, [this, view, record](const QImage &picture) {
            if (view->backgroundJson != record)
                return;
            showPicture(picture);
            editedImage = defaultBgImage = croppedImage = croppedOriginalImage = picture;
        });
    }
}

void CanvasBackground::usePicture(const QImage &picture)
{
    showPicture(picture);
    defaultBgColor.reset();
    defaultBgImage = picture;
    editedImage = picture;
    croppedImage = picture;
    croppedOriginalImage = picture.copy();
    m_session.backgroundImageView->setContentMode(ImageView::ContentMode::ScaleAspectFill);
}

void CanvasBackground::clearForNewKind()
{
    bgGradientArray.clear();
    bgPatternImage = QImage();
    defaultBgColor.reset();
    m_session.backgroundImageView->clearBackground();
    showPicture(QImage());
}

void CanvasBackground::showPicture(const QImage &picture)
{
    m_session.backgroundImageView->setImage(picture);
    m_unflipped = picture;
    m_orientation = Orientation::Up;
}

void CanvasBackground::record(const std::function<void(BackgroundJson &record)> &fill)
{
    BackgroundImageView *view = m_session.backgroundImageView;
    // The kinds exclude one another: the new one alone stays in the record.
    auto record = view->backgroundJson ? view->backgroundJson : std::make_shared<BackgroundJson>();
    *record = BackgroundJson();
    fill(*record);
    view->backgroundJson = record;
    m_session.recorder().recordBackground(record);
}

void CanvasBackground::storeBackgroundImage()
{
    const QImage picture = m_session.backgroundImageView->image();
    if (picture.isNull())
        return;
    const QString file = PictureFile::write(picture);
    if (!file.isEmpty())
        record([&file](BackgroundJson &record) { record.background_image = file; });
}

void CanvasBackground::storeBackgroundColor()
{
    const QColor colour = m_session.backgroundImageView->backgroundColor();
    const bool shown = colour.isValid() && colour.alpha() > 0;
    record([&](BackgroundJson &record) { record.background_color = shown ? HexColor::toString(colour) : QString(); });
}

void CanvasBackground::takePicture(const QImage &picture)
{
    clearForNewKind();
    croppedImage = editedImage = croppedOriginalImage = defaultBgImage = picture;
    showPicture(picture);
    storeBackgroundImage();
}

void CanvasBackground::takeColour(const std::optional<QColor> &colour)
{
    clearForNewKind();
    croppedImage = editedImage = croppedOriginalImage = defaultBgImage = QImage();
    BackgroundImageView *view = m_session.backgroundImageView;
    if (bgOriginalFrame && bgOriginalFrame->height() > 0)
        view->setFrame(*bgOriginalFrame);
    view->setBackgroundColor(colour.value_or(QColor(Qt::transparent)));
    defaultBgColor = colour;
    storeBackgroundColor();
}

void CanvasBackground::takePattern(const QImage &tile)
{
    if (tile.isNull())
        return;
    clearForNewKind();
    croppedImage = editedImage = croppedOriginalImage = defaultBgImage = QImage();
    bgPatternImage = tile;
    m_session.backgroundImageView->setPatternColor(tile);
    const QString file = PictureFile::write(tile);
    if (!file.isEmpty())
        record([&file](BackgroundJson &record) { record.texture_image = file; });
}

void CanvasBackground::takeFrame(const QImage &picture)
{
    Json *document = m_session.masterJson.get();
    if (!document || picture.isNull())
        return;
    const QString file = PictureFile::write(picture);
    if (file.isEmpty())
        return;
    m_session.fgImageView->setImage(picture);
    if (!document->frame_json)
        document->frame_json = std::make_shared<FrameJson>();
    document->frame_json->frame_image = file;
    m_session.saving().automaticSave();
}

void CanvasBackground::flip(int row)
{
    if (m_unflipped.isNull() || (row != 0 && row != 1))
        return;
    if (row == 0)
        m_orientation = m_orientation == Orientation::Up ? Orientation::UpMirrored : Orientation::Up;
    else
        m_orientation = m_orientation == Orientation::Down ? Orientation::Up : Orientation::Down;
    const QImage picture = oriented(m_unflipped, m_orientation);
    m_session.backgroundImageView->setImage(picture);
    defaultBgImage = editedImage = croppedOriginalImage = picture;
    storeBackgroundImage();
}

void CanvasBackground::takeFiltered(const QImage &picture)
{
    if (picture.isNull())
        return;
    showPicture(picture);
    defaultBgImage = editedImage = croppedOriginalImage = picture;
    storeBackgroundImage();
}

void CanvasBackground::showAdjusted(const QImage &picture)
{
    if (picture.isNull())
        return;
    showPicture(picture);
    defaultBgImage = picture;
}
