#include "addnewbgvideovc.h"

#include "applog.h"
#include "apppaths.h"
#include "bgvideocontentcategorypagervc.h"
#include "catalogscreen.h"
#include "editorsession.h"
#include "navigationcontroller.h"
#include "storyboard.h"
#include "videobackground.h"
#include "videoeditorcontroller.h"
#include "videopickflow.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVariantMap>

AddNewBGVideoVC::AddNewBGVideoVC(QObject *parent)
    : ViewController(parent)
    , m_pickFlow(new VideoPickFlow(this))
{
    setTitle(QStringLiteral("Pick your own"));
    m_pickFlow->videoMaximumDuration = videoMaximumDuration;
}

void AddNewBGVideoVC::setServices(const PickerServices &services)
{
    m_storyboard = services.storyboard;
    m_pickFlow->storyboard = services.storyboard;
}

QVariantList AddNewBGVideoVC::rows() const
{
    return { QVariantMap { { QStringLiteral("title"), QStringLiteral("Gallery") },
        { QStringLiteral("image"), QStringLiteral("bg_album") } } };
}

void AddNewBGVideoVC::selectRow(int row)
{
    if (row == 0)
        Q_EMIT galleryRequested();
}

BGVideoContentCategoryPagerVC *AddNewBGVideoVC::pager() const
{
    return qobject_cast<BGVideoContentCategoryPagerVC *>(parent());
}

void AddNewBGVideoVC::setPreparing(bool preparing)
{
    if (m_preparing == preparing)
        return;
    m_preparing = preparing;
    Q_EMIT isPreparingChanged();
}

void AddNewBGVideoVC::pickedFile(const QUrl &file)
{
    BGVideoContentCategoryPagerVC *owner = pager();
    if (m_preparing || !owner || !file.isLocalFile())
        return;
    QString path = file.toLocalFile();
    // A movie that can be trimmed is trimmed from a copy of its own in the temporary folder.
    if (VideoEditorController::canEditVideoAtPath(path)) {
        QDir().mkpath(AppPaths::tmp());
        const QString copy = AppPaths::tmp() + QLatin1Char('/') + QFileInfo(path).fileName();
        if (QFile::exists(copy) && !QFile::remove(copy))
            AppLog::print(QStringLiteral("Error for delete video ") + copy);
        if (!QFile::copy(path, copy)) {
            AppLog::print(QStringLiteral("Error for Fetching Video ") + path);
            return;
        }
        path = copy;
    }
    setPreparing(true);
    m_pickFlow->start(path, owner, [this](const std::optional<QString> &cached) {
        setPreparing(false);
        if (cached)
            openCachedVideo(QUrl::fromLocalFile(*cached));
    });
}

void AddNewBGVideoVC::openCachedVideo(const QUrl &video)
{
    BGVideoContentCategoryPagerVC *owner = pager();
    NavigationController *stack = owner ? owner->navigationController() : nullptr;
    if (!stack)
        return;
    const QList<ViewController *> screens = stack->viewControllers();
    const qsizetype at = screens.indexOf(owner);
    if (owner->vcTag == 1 || owner->vcTag == 2) {
        // The editor that opened the pager lies right under it.
        const QString wanted
            = owner->vcTag == 2 ? QStringLiteral("MoreEditVideoVC") : QStringLiteral("EditVideoPortraitMode");
        auto *editor = at > 0 ? qobject_cast<EditorSession *>(screens.at(at - 1)) : nullptr;
        if (!editor || editor->identifier() != wanted || !editor->video())
            return;
        editor->video()->newVideoURL = video;
        stack->popTo(editor);
        return;
    }
    if (!owner->isCreateOwn || !owner->createOwnJson || !m_storyboard)
        return;
    ViewController *made = m_storyboard->instantiate(QStringLiteral("EditVideoPortraitMode"));
    auto *editor = qobject_cast<EditorSession *>(made);
    if (!editor || !editor->video()) {
        delete made;
        return;
    }
    owner->createOwnJson->is_Video = true;
    editor->contentJson = owner->createOwnJson;
    editor->isCreateOwn = true;
    editor->video()->newVideoURL = video;
    stack->push(editor);
}
