#include "appdelegate.h"
#include "navigationcontroller.h"
#include "storyboard.h"
#include "testhome.h"
#include "userdefaults.h"

#include <gtest/gtest.h>

TEST(Launch, OpenCountAlternatesAndRaisesTheFlagOnEveryOtherLaunch)
{
    TestHome home;
    auto &defaults = UserDefaults::standard();
    EXPECT_TRUE(AppDelegate::advanceLaunchParity());
    EXPECT_EQ(defaults.integer(DefaultsKey::appOpenCount), 0);
    EXPECT_FALSE(AppDelegate::advanceLaunchParity());
    EXPECT_EQ(defaults.integer(DefaultsKey::appOpenCount), 1);
    EXPECT_TRUE(AppDelegate::advanceLaunchParity());
    EXPECT_EQ(defaults.integer(DefaultsKey::appOpenCount), 0);
    // Any other stored value counts as "not 1".
    defaults.setInteger(DefaultsKey::appOpenCount, 7);
    EXPECT_FALSE(AppDelegate::advanceLaunchParity());
    EXPECT_EQ(defaults.integer(DefaultsKey::appOpenCount), 1);
}

TEST(Launch, ResetsTheCachingFlagsAndShowsTheLaunchScreen)
{
    TestHome home;
    auto &defaults = UserDefaults::standard();
    defaults.setBoolean(DefaultsKey::isCachingImages, true);
    defaults.setBoolean(DefaultsKey::isCachingAdv, true);
    Storyboard storyboard;
    storyboard.registerScreen<ViewController>(QStringLiteral("AnimatedLaunchScreen"), QUrl());
    NavigationController navigation;
    AppDelegate delegate(&navigation, &storyboard);
    delegate.didFinishLaunching();
    EXPECT_EQ(defaults.boolean(DefaultsKey::isCachingImages), false);
    EXPECT_EQ(defaults.boolean(DefaultsKey::isCachingAdv), false);
    EXPECT_EQ(navigation.topIdentifier(), QStringLiteral("AnimatedLaunchScreen"));
    EXPECT_TRUE(delegate.appOpenFlag());
}

TEST(DeepLink, OnlyAFirstNonEmptySearchItemRoutes)
{
    EXPECT_EQ(AppDelegate::searchQuery(QUrl(QStringLiteral("quillet://open?search=birthday&x=1"))),
        QStringLiteral("birthday"));
    EXPECT_EQ(AppDelegate::searchQuery(QUrl(QStringLiteral("https://quillet.app/s?search=summer%20sale"))),
        QStringLiteral("summer sale"));
    EXPECT_FALSE(AppDelegate::searchQuery(QUrl(QStringLiteral("quillet://open?tab=1&search=birthday"))));
    EXPECT_FALSE(AppDelegate::searchQuery(QUrl(QStringLiteral("quillet://open?search="))));
    EXPECT_FALSE(AppDelegate::searchQuery(QUrl(QStringLiteral("quillet://open"))));
    EXPECT_FALSE(AppDelegate::searchQuery(QUrl(QStringLiteral("quillet://open?Search=x"))));
}

TEST(DeepLink, PushesTheSearchScreenWithItsTextOrReturnsFalse)
{
    TestHome home;
    Storyboard storyboard;
    storyboard.registerScreen<ViewController>(QStringLiteral("SearchCatalogVC"), QUrl());
    NavigationController navigation;
    navigation.setRoot(new ViewController());
    AppDelegate delegate(&navigation, &storyboard);

    EXPECT_FALSE(delegate.openUrl(QUrl(QStringLiteral("quillet://open?tab=2&search=x"))));
    EXPECT_FALSE(delegate.openUrl(QUrl(QStringLiteral("quillet://open?search="))));
    EXPECT_EQ(navigation.depth(), 1);
    EXPECT_TRUE(delegate.openUrl(QUrl(QStringLiteral("quillet://open?search=love")), QStringLiteral("com.example")));
    ASSERT_EQ(navigation.topIdentifier(), QStringLiteral("SearchCatalogVC"));
    EXPECT_EQ(navigation.topViewController()->property("searchTxt").toString(), QStringLiteral("love"));
    EXPECT_TRUE(navigation.topViewController()->property("isUniversalLink").toBool());
}

TEST(Launch, OrientationStaysPortrait)
{
    EXPECT_EQ(AppDelegate::supportedInterfaceOrientations(), Qt::PortraitOrientation);
}
