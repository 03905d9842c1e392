#include "preparationscreens.h"

#include "showbgvideosamplevc.h"
#include "showimagesample.h"
#include "showvideosample.h"
#include "storyboard.h"

namespace PreparationScreens {

namespace {

template<class Screen>
void add(Storyboard &storyboard, const QString &identifier, const QString &view, ServerClient *client,
    QFFontpicker *fontpicker)
{
    storyboard.registerFactory(
        identifier, QUrl(QStringLiteral("qrc:/Quillet/Preparation/") + view), [&storyboard, client, fontpicker] {
            auto *screen = new Screen();
            screen->setServices(client, fontpicker, &storyboard);
            return screen;
        });
}

} // namespace

void registerScreens(Storyboard &storyboard, ServerClient *client, QFFontpicker *fontpicker)
{
    add<ShowImageSample>(
        storyboard, QStringLiteral("ShowImageSample"), QStringLiteral("TemplateSampleView.qml"), client, fontpicker);
    add<ShowVideoSample>(
        storyboard, QStringLiteral("ShowVideoSample"), QStringLiteral("TemplateSampleView.qml"), client, fontpicker);
    add<ShowBGVideoSampleVC>(storyboard, QStringLiteral("ShowBGVideoSampleVC"),
        QStringLiteral("ShowBGVideoSampleVCView.qml"), client, fontpicker);
}

} // namespace PreparationScreens
