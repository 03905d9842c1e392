#include "alertmodel.h"
#include "apphelpers.h"
#include "designfiles.h"
#include "testhome.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <memory>

TEST(AppHelpers, WeightWordsMapToMontserratFaces)
{
    EXPECT_EQ(AppHelpers::fontNameForWeight(QStringLiteral("Medium")), QStringLiteral("Montserrat-Medium"));
    EXPECT_EQ(AppHelpers::fontNameForWeight(QStringLiteral("Semibold")), QStringLiteral("Montserrat-SemiBold"));
    EXPECT_EQ(AppHelpers::fontNameForWeight(QStringLiteral("Bold")), QStringLiteral("Montserrat-Bold"));
    EXPECT_EQ(AppHelpers::fontNameForWeight(QStringLiteral("SemiBold")), QStringLiteral("Montserrat-Regular"));
    EXPECT_EQ(AppHelpers::fontNameForWeight(QString()), QStringLiteral("Montserrat-Regular"));
}

TEST(AppHelpers, NamesAndPoints)
{
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^\\d{14}$")).match(AppHelpers::timestampName()).hasMatch());
    EXPECT_GT(AppHelpers::millisecondsName().toLongLong(), 1600000000000LL);
    EXPECT_DOUBLE_EQ(AppHelpers::toPoints(1080, 3), 360);
}

TEST(AppHelpers, PreviewUnavailableAlertText)
{
    std::unique_ptr<AlertModel> alert(DesignFiles::previewUnavailableAlert(QStringLiteral("Share")));
    EXPECT_EQ(alert->title(), QStringLiteral("Share Unavailable!"));
    EXPECT_EQ(alert->message(),
        QStringLiteral("Design preview was not generated so you can't share it.\n"
                       "Please save again to generate a new preview."));
    EXPECT_EQ(alert->actionTitles(), QStringList { QStringLiteral("OK") });
}

TEST(AppHelpers, ShippedDataFilesHaveRealContent)
{
    const auto images = AppHelpers::customRatios(false);
    const auto videos = AppHelpers::customRatios(true);
    ASSERT_GE(images.size(), 5);
    ASSERT_GE(videos.size(), 3);
    EXPECT_EQ(images.first()->name, QStringLiteral("Instagram Story"));
    EXPECT_EQ(images.first()->width, 1080);
    EXPECT_EQ(images.first()->height, 1920);
    const auto colors = AppHelpers::bgColors();
    ASSERT_GE(colors.size(), 10);
    EXPECT_EQ(colors.first()->color, QStringLiteral("FFFFFF"));
}

TEST(AppHelpers, MissingOrBrokenDataFilesGiveEmptyLists)
{
    TestHome home;
    EXPECT_TRUE(AppHelpers::customRatios(false, home.filePath(QStringLiteral("absent.json"))).isEmpty());
    QFile broken(home.filePath(QStringLiteral("broken.json")));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("{\"bgColor\": [");
    broken.close();
    EXPECT_TRUE(AppHelpers::bgColors(broken.fileName()).isEmpty());
    EXPECT_TRUE(AppHelpers::customRatios(true, broken.fileName()).isEmpty());
}
