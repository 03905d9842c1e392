#include "alertmodel.h"
#include "navigationcontroller.h"
#include "photoalbum.h"
#include "reviewprompt.h"
#include "sharesheet.h"
#include "testhome.h"
#include "userdefaults.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QMimeData>
#include <QThread>

#include <gtest/gtest.h>

namespace {

// Stands in for the desktop's file manager and browser: records the addresses it is asked to open.
class UrlRecorder : public QObject
{
    Q_OBJECT
public:
    explicit UrlRecorder(const QStringList &schemes)
        : m_schemes(schemes)
    {
        for (const QString &scheme : m_schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~UrlRecorder() override
    {
        for (const QString &scheme : m_schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }
    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url); }

private:
    QStringList m_schemes;
};

} // namespace

TEST(PhotoAlbum, LivesUnderTheHomesPicturesAndDeletesItsNewestPicture)
{
    TestHome home;
    PhotoAlbum album(QStringLiteral("Quillet"));
    EXPECT_EQ(album.folder(), home.filePath(QStringLiteral("Pictures/Quillet")));
    EXPECT_EQ(album.authorizationStatus(), PhotoAlbum::AuthorizationStatus::NotDetermined);
    EXPECT_EQ(album.requestAuthorization(), PhotoAlbum::AuthorizationStatus::Authorized);
    EXPECT_FALSE(album.exists());
    QString error;
    ASSERT_TRUE(album.create(&error));
    EXPECT_TRUE(album.exists());

    QStringList added;
    for (const char *data : { "first", "second", "third" }) {
        added.append(album.addAsset(QByteArray(data), QStringLiteral(".png"), &error));
        ASSERT_FALSE(added.last().isEmpty()) << error.toStdString();
        QThread::msleep(20); // creation dates a clock tick apart
    }
    QFile movie(QDir(album.folder()).filePath(QStringLiteral("zzz.mov")));
    ASSERT_TRUE(movie.open(QIODevice::WriteOnly));
    movie.close();
    const QFileInfoList pictures = album.imageAssets();
    ASSERT_EQ(pictures.size(), 3);
    EXPECT_EQ(pictures.last().filePath(), added.last());

    ASSERT_TRUE(album.deleteLastImageAsset(&error));
    EXPECT_FALSE(QFileInfo::exists(added.last()));
    EXPECT_TRUE(QFileInfo::exists(added.first()) && QFileInfo::exists(added.at(1)));
    EXPECT_TRUE(movie.exists());
    EXPECT_TRUE(album.addAsset({}, QStringLiteral(".png"), &error).isEmpty());

    // A folder that cannot be made is a refusal.
    EXPECT_EQ(PhotoAlbum::atFolder(added.first() + QStringLiteral("/Quillet")).requestAuthorization(),
        PhotoAlbum::AuthorizationStatus::Denied);
}

TEST(ShareSheet, CopiesRevealsAndOpensTheFile)
{
    TestHome home;
    const QString file = home.filePath(QStringLiteral("card.png"));
    QImage picture(8, 8, QImage::Format_ARGB32);
    picture.fill(Qt::green);
    ASSERT_TRUE(picture.save(file));
    UrlRecorder desktop({ QStringLiteral("file") });

    std::unique_ptr<AlertModel> sheet(ShareSheet::make(file, picture));
    EXPECT_EQ(sheet->actionTitles(),
        QStringList({ QStringLiteral("Copy"), QStringLiteral("Show in Folder"), QStringLiteral("Open"),
            QStringLiteral("Cancel") }));
    sheet->trigger(QStringLiteral("Copy"));
    const QMimeData *copied = QGuiApplication::clipboard()->mimeData();
    ASSERT_TRUE(copied);
    EXPECT_EQ(copied->urls(), QList<QUrl>({ QUrl::fromLocalFile(file) }));
    EXPECT_TRUE(copied->hasImage());

    sheet->trigger(QStringLiteral("Show in Folder"));
    sheet->trigger(QStringLiteral("Open"));
    EXPECT_EQ(desktop.opened, QList<QUrl>({ QUrl::fromLocalFile(home.path()), QUrl::fromLocalFile(file) }));
}

TEST(ReviewPrompt, AsksThreeTimesAYearAndNeverAfterTheUserRated)
{
    TestHome home;
    NavigationController navigation;
    UrlRecorder browser({ QStringLiteral("https") });
    for (int i = 0; i < 4; ++i) {
        ReviewPrompt::requestReview(&navigation);
        if (i < 3) {
            ASSERT_TRUE(navigation.alert());
            EXPECT_EQ(
                navigation.alert()->actionTitles(), QStringList({ QStringLiteral("Not Now"), QStringLiteral("Rate") }));
            navigation.alert()->trigger(QStringLiteral("Not Now"));
        }
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(navigation.alert(), nullptr);

    TestHome another;
    UserDefaults::standard().setString(QStringLiteral("store_review_url"), QStringLiteral("https://store.test/review"));
    ReviewPrompt::requestReview(&navigation);
    ASSERT_TRUE(navigation.alert());
    navigation.alert()->trigger(QStringLiteral("Rate"));
    EXPECT_TRUE(UserDefaults::standard().boolean(DefaultsKey::isRatted, false));
    EXPECT_EQ(browser.opened, QList<QUrl>({ QUrl(QStringLiteral("https://store.test/review")) }));
    QCoreApplication::processEvents();
    ReviewPrompt::requestReview(&navigation);
    EXPECT_EQ(navigation.alert(), nullptr);
}

#include "photoalbum_test.moc"
