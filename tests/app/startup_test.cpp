// The start-up against the content server: one server address at every launch (so that a restart finds its
// caches), a server of ours already answering is reused, the launch warms the catalog cache, and the
// connectivity watcher reaches the font library.
#include "animatedlaunchscreen.h"
#include "appdelegate.h"
#include "apppaths.h"
#include "appservices.h"
#include "contentserverfixture.h"
#include "fontpickerfontlistvc.h"
#include "imagecache.h"
#include "mapper.h"
#include "navigationcontroller.h"
#include "prefixurl.h"
#include "preparationscreens.h"
#include "qffontpicker.h"
#include "reachability.h"
#include "serverclient.h"
#include "showimagesample.h"
#include "showvideosample.h"
#include "storyboard.h"
#include "templatedataresponse.h"
#include "testhome.h"
#include "userdefaults.h"

#include <QDir>
#include <QTcpServer>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using State = TemplateSample::State;

int freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::LocalHost);
    return probe.serverPort();
}

QUrl loopback(int port)
{
    return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(port));
}

int filesIn(const QString &folder, const QStringList &filters = {})
{
    return int(QDir(folder).entryList(filters, QDir::Files).size());
}

/** One launch as main() makes it: the services, the screens the launch and the preparation need, the delegate. */
struct Launch
{
    Launch()
    {
        storyboard.registerFactory(QStringLiteral("AnimatedLaunchScreen"), QUrl(), [this] {
            auto *screen = new AnimatedLaunchScreen();
            screen->setStoryboard(&storyboard);
            screen->setServerClient(services.client());
            return screen;
        });
        storyboard.registerScreen<ViewController>(QStringLiteral("HomeVC"), QUrl());
        PreparationScreens::registerScreens(storyboard, services.client(), services.fontpicker());
        services.attach(delegate);
        delegate.didFinishLaunching();
    }

    [[nodiscard]] std::shared_ptr<Json> firstCard(qint64 subCategory) const
    {
        const auto cached = services.client()->cachedTemplateWithCatalogs(subCategory);
        const auto answer = cached ? Mapper::map<TemplateDataResponse>(*cached) : nullptr;
        return answer && answer->sample_cards && !answer->sample_cards->isEmpty() ? answer->sample_cards->first()
                                                                                  : nullptr;
    }

    /** The preview screen of a card, pushed over the launch screen, once it has left the loading state. */
    TemplateSample *prepare(const QString &identifier, const std::shared_ptr<Json> &card)
    {
        auto *screen = static_cast<TemplateSample *>(storyboard.instantiate(identifier));
        screen->contentJson = std::make_shared<Json>(*card);
        navigation.push(screen, false);
        EXPECT_TRUE(QTest::qWaitFor([screen] { return screen->state() != State::Loading; }, 30000));
        return screen;
    }

    AppServices services;
    Storyboard storyboard;
    NavigationController navigation;
    AppDelegate delegate { &navigation, &storyboard };
};

class StartUp : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ImageCache::shared().clearMemory();
        Reachability::setForcedConnection(std::nullopt);
    }
    void TearDown() override { Reachability::setForcedConnection(std::nullopt); }

    TestHome home;
};

TEST_F(StartUp, ASecondLaunchFindsTheFirstLaunchsCachesUnderTheSameAddress)
{
    const int port = freePort();
    UserDefaults::standard().setInteger(DefaultsKey::embeddedServerPort, port);
    const QString pictures = AppPaths::database(QStringLiteral("ImageCache"));
    const QStringList movies = { QStringLiteral("*.mov") };
    std::shared_ptr<Json> imageCard;
    std::shared_ptr<Json> videoCard;
    int picturesAfterFirst = 0;
    {
        Launch first;
        EXPECT_EQ(first.services.serverUrl(), loopback(port));
        EXPECT_TRUE(first.services.embeddedServer().server().isRunning());
        EXPECT_EQ(PrefixUrl::value(), loopback(port).toString() + QStringLiteral("content/"));
        EXPECT_EQ(first.navigation.topIdentifier(), QStringLiteral("AnimatedLaunchScreen"));
        // The launch screen's warm-up fills the first pages of image and video stories.
        ASSERT_TRUE(QTest::qWaitFor([&] { return first.firstCard(47) && first.firstCard(48); }, 20000));
        imageCard = first.firstCard(47);
        videoCard = first.firstCard(48);
        ASSERT_EQ(first.prepare(QStringLiteral("ShowImageSample"), imageCard)->state(), State::Ready);
        ASSERT_EQ(first.prepare(QStringLiteral("ShowVideoSample"), videoCard)->state(), State::Ready);
        picturesAfterFirst = filesIn(pictures);
        EXPECT_GT(picturesAfterFirst, 0);
        EXPECT_EQ(filesIn(AppPaths::documents(), movies), 1);
    }
    ImageCache::shared().clearMemory();

    Launch second;
    EXPECT_EQ(second.services.serverUrl(), loopback(port));
    const int loads = ImageCache::shared().networkLoads();
    EXPECT_EQ(second.prepare(QStringLiteral("ShowImageSample"), imageCard)->state(), State::Ready);
    EXPECT_EQ(second.prepare(QStringLiteral("ShowVideoSample"), videoCard)->state(), State::Ready);
    EXPECT_EQ(ImageCache::shared().networkLoads(), loads) << "every picture came from the disk";
    EXPECT_EQ(filesIn(pictures), picturesAfterFirst);
    EXPECT_EQ(filesIn(AppPaths::documents(), movies), 1);

    // With the server gone, the first launch's answers are still found: the catalog and the template.
    second.services.embeddedServer().server().stop();
    ImageCache::shared().clearMemory();
    EXPECT_TRUE(second.services.client()->cachedTemplateWithCatalogs(47).has_value());
    auto *offline = second.prepare(QStringLiteral("ShowImageSample"), imageCard);
    EXPECT_EQ(offline->state(), State::Ready);
    EXPECT_EQ(filesIn(pictures), picturesAfterFirst);
}

TEST_F(StartUp, AServerOfOursOnThePortIsReusedAndAPortHeldByAnotherProgramIsLeftToIt)
{
    TestContentServer ours;
    UserDefaults::standard().setInteger(DefaultsKey::embeddedServerPort, ours.server().port());
    {
        AppServices services;
        EXPECT_EQ(services.serverUrl(), loopback(ours.server().port()));
        EXPECT_FALSE(services.embeddedServer().server().isRunning());
    }

    QTcpServer stranger;
    ASSERT_TRUE(stranger.listen(QHostAddress::LocalHost));
    UserDefaults::standard().setInteger(DefaultsKey::embeddedServerPort, stranger.serverPort());
    AppServices services;
    EXPECT_TRUE(services.embeddedServer().server().isRunning());
    EXPECT_NE(services.serverUrl().port(), stranger.serverPort());
    EXPECT_EQ(services.serverUrl(), loopback(services.embeddedServer().server().port()));
}

TEST_F(StartUp, AConfiguredServerIsUsedAndTheNetworkComingBackReloadsAFontPageThatFailed)
{
    TestContentServer configured;
    UserDefaults::standard().setString(DefaultsKey::serverUrl, configured.baseUrl());
    Launch launch;
    EXPECT_EQ(launch.services.serverUrl(), QUrl(configured.baseUrl()));
    EXPECT_FALSE(launch.services.embeddedServer().server().isRunning());
    EXPECT_EQ(PrefixUrl::value(), configured.contentBase());

    Reachability::setForcedConnection(Reachability::Connection::Unavailable);
    auto *page = new FontpickerFontListVC(1);
    page->setFontpicker(launch.services.fontpicker());
    launch.navigation.push(page, false);
    EXPECT_TRUE(page->catalogs().isEmpty());
    EXPECT_TRUE(page->message().endsWith(QStringLiteral(" is unable to connect with internet")));

    Reachability::setForcedConnection(std::nullopt);
    launch.delegate.reachabilityChanged(true);
    EXPECT_TRUE(QTest::qWaitFor([page] { return !page->catalogs().isEmpty(); }, 15000));
    EXPECT_TRUE(page->message().isEmpty());
}

} // namespace
