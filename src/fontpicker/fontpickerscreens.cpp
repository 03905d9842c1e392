#include "fontpickerscreens.h"

#include "fontpickerhowtousevc.h"
#include "fontpickerpagervc.h"
#include "storyboard.h"

namespace FontpickerScreens {

void registerScreens(Storyboard &storyboard, QFFontpicker *fontpicker)
{
    const QString views = QStringLiteral("qrc:/Quillet/Fontpicker/");
    storyboard.registerFactory(QStringLiteral("FontpickerPagerVC"),
        QUrl(views + QStringLiteral("FontpickerPagerVCView.qml")), [&storyboard, fontpicker] {
            auto *pager = new FontpickerPagerVC();
            pager->setFontpicker(fontpicker);
            pager->setStoryboard(&storyboard);
            return pager;
        });
    storyboard.registerScreen<FontpickerHowToUseVC>(
        QStringLiteral("FontpickerHowToUseVC"), QUrl(views + QStringLiteral("FontpickerHowToUseVCView.qml")));
}

} // namespace FontpickerScreens
