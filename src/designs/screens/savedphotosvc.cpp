#include "savedphotosvc.h"

#include "alertmodel.h"
#include "applog.h"
#include "designfiles.h"
#include "designstorechanges.h"
#include "fullscreenvc.h"
#include "fullvideoscreenvc.h"
#include "imagecache.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "printinteractioncontroller.h"
#include "savedphotosmorevc.h"
#include "sharesheet.h"
#include "showimagesample.h"
#include "storyboard.h"

#include <QPointer>
#include <QTimer>

#include <utility>

SavedPhotosVC::SavedPhotosVC(QObject *parent)
    : ViewController(parent)
    , m_items(new SavedDesignsModel(true, this))
{
    // Saves come in bursts (an editor stores after every edit): one reading of the list per burst.
    connect(&DesignStoreChanges::shared(), &DesignStoreChanges::designsChanged, this, [this] {
        if (m_reloadPending)
            return;
        m_reloadPending = true;
        QTimer::singleShot(0, this, [this] {
            if (m_reloadPending)
                loadData();
        });
    });
}

void SavedPhotosVC::viewDidLoad()
{
    // As a tab it is only loaded; pushed, it also appears at once, and one reading serves both.
    loadData();
    m_justLoaded = true;
}

void SavedPhotosVC::viewWillAppear()
{
    if (!std::exchange(m_justLoaded, false))
        loadData();
}

void SavedPhotosVC::loadData()
{
    m_reloadPending = false;
    m_list = DesignList::load(m_store);
    m_items->reset(m_list.itemsArray);
    Q_EMIT listChanged();
}

void SavedPhotosVC::didSelectItem(int item)
{
    if (item == 0) {
        showCreateOwn();
        return;
    }
    const int row = item - 1;
    if (row < 0 || row >= m_list.itemsArray.size())
        return;
    reEdit(item, m_list.itemsArray.at(row));
}

void SavedPhotosVC::longPressed(int item)
{
    if (item < 0) {
        AppLog::print(QStringLiteral("Could not find index path"));
        return;
    }
    openSheet(item, true);
}

void SavedPhotosVC::moreClicked(int item)
{
    openSheet(item, false);
}

void SavedPhotosVC::openSheet(int item, bool longPress)
{
    NavigationController *navigation = navigationController();
    if (item < 1 || item > m_list.itemsArray.size() || !navigation || !m_storyboard)
        return;
    const bool video = m_list.itemsArray.at(item - 1)->is_Video;
    auto *sheet = qobject_cast<SavedMoreSheet *>(
        m_storyboard->instantiate(video ? QStringLiteral("SavedVideosMoreVC") : QStringLiteral("SavedPhotosMoreVC")));
    if (!sheet)
        return;
    sheet->selectedImage = item;
    sheet->longPress = longPress;
    // One listener each: the picture sheet answers its superVC, the video sheet its delegate.
    if (auto *photos = qobject_cast<SavedPhotosMoreVC *>(sheet))
        photos->superVC = this;
    else
        sheet->delegate = this;
    navigation->present(sheet);
}

void SavedPhotosVC::noCardBtnClicked()
{
    showCreateOwn();
}

void SavedPhotosVC::showCreateOwn()
{
    NavigationController *navigation = navigationController();
    if (!navigation || !m_storyboard)
        return;
    if (ViewController *screen = m_storyboard->instantiate(QStringLiteral("CreateOwnVC")))
        navigation->push(screen);
}

void SavedPhotosVC::swipedRight()
{
    // The home's tab bar, the parent of its tabs' screens, selects by its `selectedTab` (from 0).
    if (QObject *tabBar = parent(); tabBar && tabIndex > 1)
        tabBar->setProperty("selectedTab", tabIndex - 2);
}

void SavedPhotosVC::didSelectAction()
{
    if (!selectedImage)
        return;
    const int item = *std::exchange(selectedImage, std::nullopt);
    const int row = item - 1;
    if (row < 0 || row >= m_list.itemsArray.size())
        return;
    const std::shared_ptr<Json> design = m_list.itemsArray.at(row);
    if (design->is_Video) {
        videoBranch(item, design);
        return;
    }
    DesignList::loadPreview(
        *design, this, [this, item, design](const QImage &picture) { pictureBranch(item, design, picture); });
}

bool SavedPhotosVC::previewMissing(const QString &word, const Json &design)
{
    if (DesignFiles::hasPreview(design))
        return false;
    if (NavigationController *navigation = navigationController())
        navigation->presentAlert(DesignFiles::previewUnavailableAlert(word));
    return true;
}

bool SavedPhotosVC::commonBranch(const QString &word, int item, const std::shared_ptr<Json> &design)
{
    if (word == deleteAction) {
        confirmDelete(item);
    } else if (word == reEditAction) {
        reEdit(item, design);
    } else if (word == duplicateAction) {
        objectId = m_store.lastDesignObjectID();
        duplicateDesign(m_store, *design);
        loadData();
    } else {
        return false;
    }
    return true;
}

void SavedPhotosVC::pictureBranch(int item, const std::shared_ptr<Json> &design, const QImage &picture)
{
    const QString word = std::exchange(action, std::nullopt).value_or(QString());
    if (commonBranch(word, item, design))
        return;
    if ((word != previewAction && word != shareAction && word != printAction) || previewMissing(word, *design))
        return;
    NavigationController *navigation = navigationController();
    if (!navigation)
        return;
    if (word == previewAction) {
        auto *screen = m_storyboard
            ? qobject_cast<FullScreenVC *>(m_storyboard->instantiate(QStringLiteral("FullScreenVC")))
            : nullptr;
        if (!screen)
            return;
        screen->imageToDisplay = picture;
        screen->deviceOrientation = QStringLiteral("Portrait");
        navigation->push(screen);
    } else if (word == shareAction) {
        const QUrl address = DesignFiles::previewAddress(*design);
        navigation->presentAlert(ShareSheet::make(
            address.isEmpty() ? DesignFiles::previewFile(*design) : ImageCache::diskPath(address), picture));
    } else if (!picture.isNull()) {
        PrintInteractionController::presentFor(picture, navigation, m_storyboard);
    }
}

void SavedPhotosVC::videoBranch(int item, const std::shared_ptr<Json> &design)
{
    const QString word = std::exchange(action, std::nullopt).value_or(QString());
    if (commonBranch(word, item, design))
        return;
    if ((word != previewAction && word != shareAction) || previewMissing(word, *design))
        return;
    const QString file = DesignFiles::videoFile(*design);
    if (word == previewAction) {
        FullVideoScreenVC::show(
            navigationController(), m_storyboard, file.isEmpty() ? QUrl() : QUrl::fromLocalFile(file));
    } else if (NavigationController *navigation = navigationController(); navigation && !file.isEmpty()) {
        navigation->presentAlert(ShareSheet::make(file));
    }
}

void SavedPhotosVC::confirmDelete(int item)
{
    NavigationController *navigation = navigationController();
    if (!navigation)
        return;
    auto *alert = new AlertModel(tr("Confirm"), tr("Are you sure you want to delete this card?"));
    alert->addAction(tr("NO"), AlertModel::Style::Cancel);
    alert->addAction(tr("DELETE"), AlertModel::Style::Destructive, [list = QPointer(this), item] {
        if (!list || item - 1 >= list->m_list.objectIdArr.size())
            return;
        if (list->m_store.deleteDesign(list->m_list.objectIdArr.at(item - 1)))
            list->loadData();
    });
    navigation->presentAlert(alert);
}

void SavedPhotosVC::reEdit(int item, const std::shared_ptr<Json> &design)
{
    NavigationController *navigation = navigationController();
    if (!navigation || !m_storyboard || item - 1 >= m_list.objectIdArr.size())
        return;
    selectedIndex = item;
    auto *sample = qobject_cast<TemplateSample *>(m_storyboard->instantiate(
        design->is_Video ? QStringLiteral("ShowVideoSample") : QStringLiteral("ShowImageSample")));
    if (!sample)
        return;
    sample->reEditJson = design;
    sample->objectId = m_list.objectIdArr.at(item - 1);
    if (auto *image = qobject_cast<ShowImageSample *>(sample); image && design->isHighlightCover) {
        image->isHightLightEditor = true;
        image->isReeditImage = true;
    }
    if (design->height.value_or(0) < design->width.value_or(0))
        sample->deviceOrientation = QStringLiteral("Landscape");
    navigation->push(sample);
}

std::optional<ObjectId> SavedPhotosVC::duplicateDesign(DesignStore &store, const Json &design)
{
    const std::optional<QString> jsonString = Mapper::toJSONString(design, true);
    if (!jsonString)
        return std::nullopt;
    return store.saveDesign(*jsonString, std::nullopt, design.is_Video);
}
