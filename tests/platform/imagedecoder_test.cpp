// Pictures read from their bytes: a photograph that says it was taken turned comes upright.
#include "imagedecoder.h"
#include "testhome.h"

#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

/** An Exif block that gives only the orientation (6: the camera was turned a quarter clockwise). */
QByteArray exifOrientation(quint16 orientation)
{
    QByteArray tiff("MM\0*\0\0\0\x08", 8); // big-endian, first directory at 8
    tiff += QByteArray("\0\x01", 2); // one entry
    tiff += QByteArray("\x01\x12\0\x03\0\0\0\x01", 8); // Orientation, SHORT, count 1
    tiff += char(orientation >> 8);
    tiff += char(orientation & 0xFF);
    tiff += QByteArray(2, '\0');
    tiff += QByteArray(4, '\0'); // no next directory
    const QByteArray payload = QByteArray("Exif\0\0", 6) + tiff;
    QByteArray segment("\xFF\xE1", 2);
    const quint16 length = quint16(payload.size() + 2);
    segment += char(length >> 8);
    segment += char(length & 0xFF);
    return segment + payload;
}

} // namespace

TEST(ImageDecoder, APhotographTakenTurnedComesUpright)
{
    TestHome home;
    const QString path = home.filePath(QStringLiteral("photo.jpg"));
    QProcess ffmpeg;
    ffmpeg.start(QStringLiteral("ffmpeg"),
        { "-loglevel", "error", "-y", "-f", "lavfi", "-i", "testsrc2=size=64x32", "-frames:v", "1", path });
    ASSERT_TRUE(ffmpeg.waitForFinished(30000) && ffmpeg.exitCode() == 0) << ffmpeg.readAllStandardError().constData();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray plain = file.readAll();
    file.close();
    ASSERT_TRUE(plain.startsWith("\xFF\xD8"));
    EXPECT_EQ(ImageDecoder::decodeFile(path).size(), QSize(64, 32));

    // The same picture with the camera's note that it was held turned a quarter clockwise.
    const QByteArray turned = plain.left(2) + exifOrientation(6) + plain.mid(2);
    EXPECT_EQ(ImageDecoder::decode(turned).size(), QSize(32, 64));

    EXPECT_TRUE(ImageDecoder::decodeFile(home.filePath(QStringLiteral("missing.jpg"))).isNull());
    EXPECT_TRUE(ImageDecoder::decode("not a picture").isNull());
}
