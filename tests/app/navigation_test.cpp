#include "alertmodel.h"
#include "navigationcontroller.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class CountingScreen : public ViewController
{
public:
    int loads = 0;
    int appears = 0;
    void viewDidLoad() override { ++loads; }
    void viewWillAppear() override { ++appears; }
};

} // namespace

TEST(NavigationController, PushPopAndPopToRootKeepTheRootAndReappearTheTop)
{
    NavigationController navigation;
    auto *root = new CountingScreen();
    navigation.setRoot(root);
    auto *second = new CountingScreen();
    QPointer<CountingScreen> third = new CountingScreen();
    navigation.push(second);
    navigation.push(third);
    EXPECT_EQ(navigation.depth(), 3);
    navigation.pop();
    EXPECT_EQ(navigation.topViewController(), second);
    EXPECT_EQ(second->loads, 1);
    EXPECT_EQ(second->appears, 2);
    QTest::qWait(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(third.isNull());
    navigation.popToRoot();
    navigation.pop(); // never pops the root
    EXPECT_EQ(navigation.depth(), 1);
    EXPECT_EQ(root->appears, 2);
}

TEST(NavigationController, AlertsShowOneAtATimeAndRunTheirHandler)
{
    NavigationController navigation;
    int yes = 0;
    auto *first = new AlertModel(QStringLiteral("Confirm"), QStringLiteral("Are you sure?"));
    first->addAction(QStringLiteral("NO"), AlertModel::Style::Cancel);
    first->addAction(QStringLiteral("YES"), AlertModel::Style::Default, [&yes] { ++yes; });
    auto *second = new AlertModel(QStringLiteral("Other"), QString());
    navigation.presentAlert(first);
    navigation.presentAlert(second);
    ASSERT_EQ(navigation.alert(), first);
    EXPECT_EQ(first->cancelTitle(), QStringLiteral("NO"));
    EXPECT_FALSE(first->trigger(QStringLiteral("MAYBE")));
    EXPECT_TRUE(first->trigger(QStringLiteral("YES")));
    EXPECT_EQ(yes, 1);
    EXPECT_EQ(navigation.alert(), second);
}
