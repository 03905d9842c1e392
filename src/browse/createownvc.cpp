#include "createownvc.h"

#include "alertmodel.h"
#include "applog.h"
#include "editorsession.h"
#include "navigationcontroller.h"
#include "storyboard.h"

namespace {

const QString createTitle = QStringLiteral("Create");
const QString highlightCoverName = QStringLiteral("Highlight Cover");

} // namespace

CreateOwnVC::CreateOwnVC(QObject *parent)
    : ViewController(parent)
{
    setTitle(QStringLiteral("WHAT DO YOU NEED?"));
}

void CreateOwnVC::setServices(RatioSource ratios, const Storyboard *storyboard)
{
    m_ratios = std::move(ratios);
    m_storyboard = storyboard;
}

void CreateOwnVC::viewDidLoad()
{
    if (!m_ratios)
        return;
    imageArray = m_ratios(false);
    videoArray = m_ratios(true);
    Q_EMIT listsChanged();
}

QVariantList CreateOwnVC::sizes(const QList<std::shared_ptr<CustomRatio>> &list)
{
    QVariantList rows;
    for (const auto &ratio : list) {
        rows.append(QVariantMap { { QStringLiteral("name"), ratio->name.value_or(QString()) },
            { QStringLiteral("ratio"), ratio->ratio.value_or(QString()) },
            { QStringLiteral("image"), ratio->image.value_or(QString()) },
            { QStringLiteral("width"), ratio->width.value_or(0) },
            { QStringLiteral("height"), ratio->height.value_or(0) } });
    }
    return rows;
}

QVariantList CreateOwnVC::imageSizes() const
{
    return sizes(imageArray);
}

QVariantList CreateOwnVC::videoSizes() const
{
    return sizes(videoArray);
}

bool CreateOwnVC::isValidSide(const QString &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && value >= minimumSide && value <= maximumSide;
}

std::shared_ptr<Json> CreateOwnVC::blankDocument(double width, double height)
{
    auto document = std::make_shared<Json>();
    document->width = width;
    document->height = height;
    document->is_portrait = width <= height;
    document->text_json = QList<std::shared_ptr<TextJson>>();
    document->sticker_json = QList<std::shared_ptr<StickerJson>>();
    document->image_sticker_json = QList<std::shared_ptr<ImageStickerJson>>();
    document->frame_image_sticker_json = QList<std::shared_ptr<FrameImageStickerJson>>();
    document->background_json = std::make_shared<BackgroundJson>();
    document->frame_json = std::make_shared<FrameJson>();
    return document;
}

void CreateOwnVC::didSelect(bool video, int row)
{
    const auto &list = video ? videoArray : imageArray;
    if (row < 0 || row >= list.size())
        return;
    is_video = video;
    const CustomRatio &ratio = *list.at(row);
    if (ratio.name == customSizeName) {
        showCustomSizeAlert();
        return;
    }
    is_custom = false;
    selectedIndex = row;
    index = ratio.name == highlightCoverName ? QStringLiteral("HighLightEditor")
                                             : QStringLiteral("EditImagePortraitMode");
    create();
}

void CreateOwnVC::showCustomSizeAlert()
{
    NavigationController *stack = navigationController();
    if (!stack)
        return;
    auto *alert = new AlertModel(customSizeName, QStringLiteral("Enter the size in pixels between 100 and 2048."));
    alert->addTextField(QStringLiteral("Width"), true)->addTextField(QStringLiteral("Height"), true);
    QPointer<AlertModel> fields(alert);
    alert->addAction(createTitle, AlertModel::Style::Default, [this, fields] {
        if (fields)
            createCustom(fields->textFieldTexts().at(0).toDouble(), fields->textFieldTexts().at(1).toDouble());
    });
    alert->addAction(QStringLiteral("Cancel"), AlertModel::Style::Cancel);
    alert->setActionEnabled(createTitle, false);
    connect(alert, &AlertModel::textFieldEdited, alert, [alert] {
        const QStringList texts = alert->textFieldTexts();
        alert->setActionEnabled(createTitle, isValidSide(texts.at(0)) && isValidSide(texts.at(1)));
    });
    stack->presentAlert(alert);
}

void CreateOwnVC::createCustom(double width, double height)
{
    customWidth = width;
    customHeight = height;
    is_custom = true;
    if (!is_video && customWidth > customHeight) {
        if (NavigationController *stack = navigationController()) {
            auto *refusal = new AlertModel(QString(), QStringLiteral("Please enter valid height greater then width."));
            refusal->addAction(QStringLiteral("OK"), AlertModel::Style::Default, [this] { showCustomSizeAlert(); });
            stack->presentAlert(refusal);
        }
        return;
    }
    index = QStringLiteral("EditImagePortraitMode");
    create();
}

void CreateOwnVC::create()
{
    double width = customWidth;
    double height = customHeight;
    if (!is_custom && selectedIndex) {
        const CustomRatio &ratio = *(is_video ? videoArray : imageArray).at(*selectedIndex);
        width = ratio.width.value_or(0);
        height = ratio.height.value_or(0);
        selectedIndex.reset();
    }
    contentJson = blankDocument(width, height);
    if (is_video)
        openBackgroundVideos();
    else
        openEditor();
}

void CreateOwnVC::openEditor()
{
    NavigationController *stack = navigationController();
    if (!stack || !m_storyboard)
        return;
    ViewController *screen = m_storyboard->instantiate(index);
    auto *editor = qobject_cast<EditorSession *>(screen);
    if (!editor) {
        AppLog::print(QStringLiteral("no editor ") + index);
        delete screen;
        return;
    }
    editor->contentJson = contentJson;
    editor->isCreateOwn = true;
    stack->push(editor);
}

void CreateOwnVC::openBackgroundVideos()
{
    const QString identifier = QStringLiteral("BGVideoContentCategoryPagerVC");
    NavigationController *stack = navigationController();
    if (!stack || !m_storyboard)
        return;
    ViewController *pager = m_storyboard->instantiate(identifier);
    if (!pager) {
        // A build without the background videos says so rather than leave the tap unanswered.
        AppLog::print(QStringLiteral("no screen ") + identifier);
        auto *notice = new AlertModel(QString(), QStringLiteral("Background videos are not available."));
        notice->addAction(QStringLiteral("OK"));
        stack->presentAlert(notice);
        return;
    }
    // The pager hands the blank design on to the video editor once a background video is chosen.
    pager->setProperty("isCreateOwn", true);
    pager->setProperty("createOwnJson", QVariant::fromValue(contentJson));
    stack->push(pager);
}
