#include "testmedia.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QRandomGenerator>
#include <QtEndian>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace {

QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        ADD_FAILURE() << qPrintable(program) << ' ' << qPrintable(arguments.join(u' ')) << ": "
                      << process.readAllStandardError().toStdString();
        return {};
    }
    return process.readAllStandardOutput();
}

// The offset of a box's payload, found by its four-letter type.
qsizetype boxPayload(const QByteArray &data, const char *type)
{
    const qsizetype at = data.indexOf(type);
    return at < 4 ? -1 : at + 4;
}

} // namespace

TestMedia::TestMedia(QString folder)
    : m_folder(std::move(folder))
{
    QDir().mkpath(m_folder);
}

QString TestMedia::path(const QString &name) const
{
    return m_folder + QLatin1Char('/') + name;
}

QString TestMedia::make(const QString &name, const QStringList &arguments) const
{
    const QString output = path(name);
    run(QStringLiteral("ffmpeg"),
        QStringList {
            QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"), QStringLiteral("-y") }
            + arguments + QStringList { output });
    return output;
}

QString TestMedia::movie(const QString &name, const QString &source, double seconds, bool withSound) const
{
    QStringList arguments { QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"), source };
    if (withSound)
        arguments += { QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            QStringLiteral("sine=frequency=440:sample_rate=44100") };
    arguments += { QStringLiteral("-t"), QString::number(seconds), QStringLiteral("-c:v"), QStringLiteral("libx264"),
        QStringLiteral("-preset"), QStringLiteral("ultrafast"), QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p") };
    if (withSound)
        arguments += { QStringLiteral("-c:a"), QStringLiteral("aac") };
    return make(name, arguments);
}

QString TestMedia::music(const QString &name, double seconds) const
{
    return make(name,
        { QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
            QStringLiteral("aevalsrc=if(lt(t\\,0.1)\\,0.9*sin(2*PI*1000*t)\\,0.05*sin(2*PI*300*t)):s=44100:d=%1")
                .arg(seconds),
            QStringLiteral("-c:a"), QStringLiteral("aac"), QStringLiteral("-b:a"), QStringLiteral("128k") });
}

void TestMedia::setDisplayMatrix(const QString &movie, const QTransform &matrix)
{
    QFile file(movie);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray data = file.readAll();
    const qsizetype header = boxPayload(data, "tkhd");
    ASSERT_GE(header, 0);
    // version and flags, then the times (32 or 64 bits by version), reserved, layer, group, volume, reserved.
    const bool longTimes = data.at(header) == 1;
    const qsizetype at = header + 4 + (longTimes ? 32 : 20) + 8 + 8;
    const double values[9]
        = { matrix.m11(), matrix.m12(), 0, matrix.m21(), matrix.m22(), 0, matrix.dx(), matrix.dy(), 1 };
    for (int i = 0; i < 9; ++i) {
        // a, b, c, d, tx, ty are 16.16 fixed point; the last column 2.30.
        const double scale = (i % 3 == 2) ? double(1 << 30) : 65536.0;
        qToBigEndian<qint32>(qint32(std::lround(values[i] * scale)), data.data() + at + 4 * i);
    }
    file.seek(0);
    file.write(data);
}

void TestMedia::scrambleMediaData(const QString &file)
{
    QFile media(file);
    ASSERT_TRUE(media.open(QIODevice::ReadWrite));
    QByteArray data = media.readAll();
    const qsizetype payload = boxPayload(data, "mdat");
    ASSERT_GE(payload, 0);
    const quint32 size = qFromBigEndian<quint32>(data.constData() + payload - 8);
    QRandomGenerator noise(7);
    for (qsizetype i = payload; i < payload - 8 + qsizetype(size) && i < data.size(); ++i)
        data[i] = char(noise.bounded(256));
    media.seek(0);
    media.write(data);
}

QJsonObject probe(const QString &file)
{
    const QByteArray json = run(QStringLiteral("ffprobe"),
        { QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-count_frames"),
            QStringLiteral("-show_streams"), QStringLiteral("-show_format"), QStringLiteral("-of"),
            QStringLiteral("json"), file });
    return QJsonDocument::fromJson(json).object();
}

std::vector<QJsonObject> streamsOf(const QString &file, const QString &type)
{
    std::vector<QJsonObject> streams;
    for (const QJsonValue &stream : probe(file).value(QStringLiteral("streams")).toArray()) {
        if (stream.toObject().value(QStringLiteral("codec_type")).toString() == type)
            streams.push_back(stream.toObject());
    }
    return streams;
}

std::vector<double> keyFrameTimes(const QString &movie)
{
    const QByteArray csv = run(QStringLiteral("ffprobe"),
        { QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-select_streams"), QStringLiteral("v"),
            QStringLiteral("-show_entries"), QStringLiteral("packet=pts_time,flags"), QStringLiteral("-of"),
            QStringLiteral("csv=p=0"), movie });
    std::vector<double> times;
    for (const QByteArray &line : csv.split('\n')) {
        const QList<QByteArray> fields = line.split(',');
        if (fields.size() >= 2 && fields[1].startsWith('K'))
            times.push_back(fields[0].toDouble());
    }
    std::sort(times.begin(), times.end());
    return times;
}

QImage frameAt(const QString &movie, double seconds)
{
    const QByteArray png = run(QStringLiteral("ffmpeg"),
        { QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), movie, QStringLiteral("-ss"),
            QString::number(seconds), QStringLiteral("-frames:v"), QStringLiteral("1"), QStringLiteral("-f"),
            QStringLiteral("image2pipe"), QStringLiteral("-c:v"), QStringLiteral("png"), QStringLiteral("-") });
    return QImage::fromData(png, "PNG");
}

std::vector<float> soundOf(const QString &movie, int rate)
{
    const QByteArray raw = run(QStringLiteral("ffmpeg"),
        { QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), movie, QStringLiteral("-ac"),
            QStringLiteral("1"), QStringLiteral("-ar"), QString::number(rate), QStringLiteral("-f"),
            QStringLiteral("f32le"), QStringLiteral("-") });
    std::vector<float> samples(std::size_t(raw.size()) / sizeof(float));
    std::memcpy(samples.data(), raw.constData(), samples.size() * sizeof(float));
    return samples;
}

std::vector<double> burstOnsets(const std::vector<float> &samples, int rate)
{
    // Level in windows of 10 ms; a burst is a window well above the quiet tone after one that is not.
    const std::size_t window = std::size_t(rate / 100);
    std::vector<double> onsets;
    bool loud = false;
    for (std::size_t start = 0; start + window <= samples.size(); start += window) {
        double energy = 0;
        for (std::size_t i = start; i < start + window; ++i)
            energy += double(samples[i]) * samples[i];
        const bool nowLoud = std::sqrt(energy / window) > 0.3;
        if (nowLoud && !loud)
            onsets.push_back(double(start) / rate);
        loud = nowLoud;
    }
    return onsets;
}

bool near(QColor actual, QColor expected, int tolerance)
{
    return std::abs(actual.red() - expected.red()) <= tolerance
        && std::abs(actual.green() - expected.green()) <= tolerance
        && std::abs(actual.blue() - expected.blue()) <= tolerance;
}
