#include "ownpicturepage.h"

#include "contentcategorypager.h"
#include "navigationcontroller.h"
#include "pickedpicture.h"

#include <QVariantMap>

OwnPicturePage::OwnPicturePage(QList<std::pair<QString, QString>> rows, QObject *parent)
    : ViewController(parent)
    , m_rows(std::move(rows))
{ }

QVariantList OwnPicturePage::rows() const
{
    QVariantList list;
    for (const auto &[title, image] : m_rows)
        list.append(QVariantMap { { QStringLiteral("title"), title }, { QStringLiteral("image"), image } });
    return list;
}

ContentCategoryPager *OwnPicturePage::pager() const
{
    return qobject_cast<ContentCategoryPager *>(parent());
}

NavigationController *OwnPicturePage::navigation() const
{
    if (NavigationController *own = navigationController())
        return own;
    return pager() ? pager()->navigationController() : nullptr;
}

void OwnPicturePage::pickedFile(const QUrl &file)
{
    if (m_preparing)
        return;
    m_preparing = true;
    Q_EMIT isPreparingChanged();
    PickedPicture::decode(this, file, [this](const QImage &picture) {
        m_preparing = false;
        Q_EMIT isPreparingChanged();
        if (picture.isNull()) {
            if (NavigationController *stack = navigation())
                stack->presentAlert(PickedPicture::notAPictureAlert());
            return;
        }
        if (ContentCategoryPager *owner = pager())
            handBack(*owner, picture);
    });
}
