#include "apppaths.h"
#include "testhome.h"
#include "userdefaults.h"

#include <gtest/gtest.h>

TEST(UserDefaults, AbsentKeysReadAsTheCallersDefault)
{
    TestHome home;
    auto &defaults = UserDefaults::standard();
    EXPECT_FALSE(defaults.contains(DefaultsKey::token));
    EXPECT_FALSE(defaults.string(DefaultsKey::token).has_value());
    EXPECT_FALSE(defaults.boolean(DefaultsKey::isRatted, false));
    EXPECT_TRUE(defaults.boolean(DefaultsKey::isRatted, true));
}

TEST(UserDefaults, ValuesSurviveReopeningAndKeepTheirType)
{
    TestHome home;
    const QString file = AppPaths::database(QStringLiteral("settings.sqlite"));
    {
        UserDefaults defaults(file);
        defaults.setString(DefaultsKey::token, QStringLiteral("abc"));
        defaults.setInteger(DefaultsKey::appOpenCount, 1);
        defaults.setBoolean(DefaultsKey::isCachingAdv, true);
        defaults.setDictionary(QStringLiteral("http://x/api"), QJsonObject { { QStringLiteral("code"), 200 } });
    }
    UserDefaults reopened(file);
    EXPECT_EQ(reopened.string(DefaultsKey::token), QStringLiteral("abc"));
    EXPECT_EQ(reopened.integer(DefaultsKey::appOpenCount), 1);
    EXPECT_EQ(reopened.boolean(DefaultsKey::isCachingAdv), true);
    EXPECT_EQ(reopened.dictionary(QStringLiteral("http://x/api"))->value(QStringLiteral("code")).toInt(), 200);
    // A value of another type is not coerced.
    EXPECT_FALSE(reopened.string(DefaultsKey::appOpenCount).has_value());
    reopened.remove(DefaultsKey::token);
    EXPECT_FALSE(UserDefaults(file).contains(DefaultsKey::token));
}

TEST(UserDefaults, StandardFollowsTheCurrentHome)
{
    {
        TestHome first;
        UserDefaults::standard().setString(DefaultsKey::token, QStringLiteral("one"));
    }
    TestHome second;
    EXPECT_FALSE(UserDefaults::standard().contains(DefaultsKey::token));
}
