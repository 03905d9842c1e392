#include "apppaths.h"
#include "previewwriter.h"
#include "testhome.h"

#include <QDir>
#include <QImageReader>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QImage filled(QImage::Format format)
{
    QImage image(64, 48, format);
    image.fill(QColor(224, 88, 99, 128));
    return image;
}

} // namespace

TEST(PreviewWriter, TheBitmapLayoutChoosesTheFormat)
{
    TestHome home;
    const struct
    {
        QImage::Format format;
        const char *suffix;
        const char *decodedAs;
    } cases[] = {
        { QImage::Format_ARGB32_Premultiplied, ".png", "png" },
        { QImage::Format_RGBA8888, ".png", "png" },
        { QImage::Format_RGB888, ".png", "png" }, // no alpha at all
        { QImage::Format_Grayscale8, ".png", "png" },
        { QImage::Format_RGB32, ".jpg", "jpeg" }, // an alpha byte that is skipped
        { QImage::Format_RGBX8888, ".jpg", "jpeg" },
    };
    QStringList names;
    for (const auto &c : cases) {
        const QString name = PreviewWriter::write(filled(c.format));
        EXPECT_TRUE(
            name.contains(QRegularExpression(QStringLiteral("^[0-9]{11,}\\") + QString::fromLatin1(c.suffix) + u'$')))
            << qPrintable(name);
        QImageReader reader(AppPaths::documents() + u'/' + name);
        EXPECT_EQ(reader.format(), QByteArray(c.decodedAs)) << qPrintable(name);
        EXPECT_EQ(reader.read().size(), QSize(64, 48));
        names.append(name);
    }
    // Nothing but the pictures is left in Documents: no temporary files of the atomic writes.
    EXPECT_EQ(QDir(AppPaths::documents()).entryList(QDir::Files).size(), names.size());
}

TEST(PreviewWriter, NoPictureGivesNoName)
{
    TestHome home;
    EXPECT_TRUE(PreviewWriter::write(QImage()).isEmpty());
    EXPECT_TRUE(QDir(AppPaths::documents()).isEmpty());
}

TEST(PreviewWriter, AnUnwritableFolderGivesNoName)
{
    TestHome home;
    ASSERT_TRUE(QDir(AppPaths::documents()).removeRecursively());
    QFile blocker(AppPaths::documents()); // a file where the folder should be
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    EXPECT_TRUE(PreviewWriter::write(filled(QImage::Format_ARGB32)).isEmpty());
}
