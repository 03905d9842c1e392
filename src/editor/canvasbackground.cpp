#include "canvasbackground.h"

#include "backgroundimageview.h"
#include "designpictures.h"
#include "editorsession.h"
#include "hexcolor.h"
#include "picturefile.h"
#include "undorecorder.h"

using DesignPictures::nonEmpty;

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
    bgGradientArray.clear();
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
    if (nonEmpty(record->background_image)) {
        DesignPictures::show(document, *record->background_image, view, [this, view, record](const QImage &picture) {
            if (view->backgroundJson != record)
                return;
            view->setImage(picture);
            editedImage = defaultBgImage = croppedImage = croppedOriginalImage = picture;
        });
    }
}

void CanvasBackground::usePicture(const QImage &picture)
{
    BackgroundImageView *view = m_session.backgroundImageView;
    view->setImage(picture);
    defaultBgColor.reset();
    defaultBgImage = picture;
    editedImage = picture;
    croppedImage = picture;
    croppedOriginalImage = picture.copy();
    view->setContentMode(ImageView::ContentMode::ScaleAspectFill);
}

void CanvasBackground::clearForNewKind()
{
    bgGradientArray.clear();
    bgPatternImage = QImage();
    defaultBgColor.reset();
    m_session.backgroundImageView->clearBackground();
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

void CanvasBackground::takePicture(const QImage &picture)
{
    clearForNewKind();
    croppedImage = editedImage = croppedOriginalImage = defaultBgImage = picture;
    m_session.backgroundImageView->setImage(picture);
    const QString file = PictureFile::write(picture);
    if (!file.isEmpty())
        record([&file](BackgroundJson &record) { record.background_image = file; });
}

void CanvasBackground::takeColour(const std::optional<QColor> &colour)
{
    clearForNewKind();
    croppedImage = editedImage = croppedOriginalImage = defaultBgImage = QImage();
    BackgroundImageView *view = m_session.backgroundImageView;
    view->setImage(QImage());
    view->setBackgroundColor(colour.value_or(QColor(Qt::transparent)));
    defaultBgColor = colour;
    // A transparent background stores the empty string.
    record([&colour](
               BackgroundJson &record) { record.background_color = colour ? HexColor::toString(*colour) : QString(); });
}
