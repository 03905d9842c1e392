#include "bgvideocontentvc.h"

#include "applog.h"
#include "bgvideocontentcategorypagervc.h"
#include "navigationcontroller.h"
#include "showbgvideosamplevc.h"
#include "storyboard.h"

BGVideoContentVC::BGVideoContentVC(QObject *parent)
    : CatalogContentPage(parent)
{ }

void BGVideoContentVC::openItem(const std::shared_ptr<Json> &item)
{
    auto *owner = qobject_cast<BGVideoContentCategoryPagerVC *>(pager());
    NavigationController *stack = navigation();
    ViewController *made
        = services().storyboard ? services().storyboard->instantiate(QStringLiteral("ShowBGVideoSampleVC")) : nullptr;
    auto *sample = qobject_cast<ShowBGVideoSampleVC *>(made);
    if (!owner || !stack || !sample) {
        AppLog::print(QStringLiteral("BGVideoContentVC: no preview to open"));
        delete made;
        return;
    }
    sample->resultJson = item->copy();
    sample->vcTag = owner->vcTag;
    sample->isCreateOwn = owner->isCreateOwn;
    stack->push(sample);
}
