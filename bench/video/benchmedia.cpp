#include "benchmedia.h"

#include "avhandles.h"
#include "frameimage.h"

#include <QProcess>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <vector>

namespace {

QByteArray ffmpegOutput(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("ffmpeg"),
        QStringList { QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error") }
            + arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        std::fprintf(
            stderr, "ffmpeg %s: %s\n", qPrintable(arguments.join(u' ')), process.readAllStandardError().constData());
        return {};
    }
    return process.readAllStandardOutput();
}

// SSIM of two planes of samples, row by row, over 8 x 8 windows placed every 4 samples.
double planeSsim(const std::vector<float> &a, const std::vector<float> &b, int width, int height)
{
    constexpr double c1 = (0.01 * 255) * (0.01 * 255);
    constexpr double c2 = (0.03 * 255) * (0.03 * 255);
    double total = 0;
    int windows = 0;
    for (int y = 0; y + 8 <= height; y += 4) {
        for (int x = 0; x + 8 <= width; x += 4) {
            double sa = 0, sb = 0, saa = 0, sbb = 0, sab = 0;
            for (int j = y; j < y + 8; ++j) {
                for (int i = x; i < x + 8; ++i) {
                    const double va = a[std::size_t(j) * width + i];
                    const double vb = b[std::size_t(j) * width + i];
                    sa += va;
                    sb += vb;
                    saa += va * va;
                    sbb += vb * vb;
                    sab += va * vb;
                }
            }
            const double n = 64;
            const double ma = sa / n, mb = sb / n;
            const double va = saa / n - ma * ma, vb = sbb / n - mb * mb, cov = sab / n - ma * mb;
            total += (2 * ma * mb + c1) * (2 * cov + c2) / ((ma * ma + mb * mb + c1) * (va + vb + c2));
            ++windows;
        }
    }
    return windows ? total / windows : 0;
}

// The reference picture: converted at its full size, then scaled by Qt's own smooth scaling, which is
// neither ours nor ffmpeg's.
QImage scaledPicture(const AVFrame &frame, QSize size)
{
    return frameToImage(frame, QSize(frame.width, frame.height))
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB888);
}

} // namespace

bool runFfmpeg(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral("ffmpeg"),
        QStringList {
            QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"), QStringLiteral("-y") }
            + arguments);
    const bool done
        = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!done)
        std::fprintf(stderr, "ffmpeg failed: %s\n", process.readAllStandardError().constData());
    return done;
}

MergeWorkload makeMergeWorkload(const QString &folder)
{
    const MergeWorkload workload { folder + QStringLiteral("/video.mp4"), folder + QStringLiteral("/overlay.png"),
        folder + QStringLiteral("/music.m4a") };
    runFfmpeg({ QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
        QStringLiteral("testsrc2=size=1080x1920:rate=30,noise=alls=2:allf=t"), QStringLiteral("-f"),
        QStringLiteral("lavfi"), QStringLiteral("-i"), QStringLiteral("sine=frequency=220:sample_rate=48000"),
        QStringLiteral("-t"), QStringLiteral("15"), QStringLiteral("-c:v"), QStringLiteral("libx264"),
        QStringLiteral("-preset"), QStringLiteral("veryfast"), QStringLiteral("-crf"), QStringLiteral("20"),
        QStringLiteral("-pix_fmt"), QStringLiteral("yuv420p"), QStringLiteral("-c:a"), QStringLiteral("aac"),
        QStringLiteral("-b:a"), QStringLiteral("128k"), workload.video });
    runFfmpeg({ QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
        QStringLiteral("color=c=black@0.0:s=1080x1920,format=rgba,"
                       "drawbox=x=0:y=0:w=1080:h=320:color=0xE05863@1.0:t=fill,"
                       "drawbox=x=0:y=0:w=1080:h=1920:color=white@1.0:t=24,"
                       "drawbox=x=80:y=1480:w=920:h=340:color=black@0.6:t=fill,"
                       "drawbox=x=140:y=1540:w=800:h=60:color=white@1.0:t=fill,"
                       "drawbox=x=140:y=1640:w=560:h=60:color=white@1.0:t=fill,"
                       "drawbox=x=780:y=420:w=200:h=200:color=0xF8C221@1.0:t=fill,"
                       "drawbox=x=100:y=1100:w=160:h=160:color=0x3BB273@0.8:t=fill"),
        QStringLiteral("-frames:v"), QStringLiteral("1"), workload.overlay });
    runFfmpeg({ QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
        QStringLiteral("aevalsrc=0.3*sin(2*PI*330*t)|0.3*sin(2*PI*495*t):s=44100:d=4"), QStringLiteral("-c:a"),
        QStringLiteral("aac"), QStringLiteral("-b:a"), QStringLiteral("160k"), workload.music });
    return workload;
}

std::vector<QImage> gifFrames(const QString &gif, QSize size)
{
    // Every frame once, whatever its delay.
    const QByteArray raw = ffmpegOutput(
        { QStringLiteral("-i"), gif, QStringLiteral("-vsync"), QStringLiteral("passthrough"), QStringLiteral("-f"),
            QStringLiteral("rawvideo"), QStringLiteral("-pix_fmt"), QStringLiteral("rgb24"), QStringLiteral("-") });
    const qsizetype frameBytes = qsizetype(size.width()) * size.height() * 3;
    std::vector<QImage> frames;
    for (qsizetype at = 0; at + frameBytes <= raw.size(); at += frameBytes) {
        QImage frame(size, QImage::Format_RGB888);
        for (int y = 0; y < size.height(); ++y)
            std::memcpy(
                frame.scanLine(y), raw.constData() + at + qsizetype(y) * size.width() * 3, size_t(size.width()) * 3);
        frames.push_back(frame);
    }
    return frames;
}

QImage movieFrame(const QString &movie, double seconds, QSize size)
{
    // Decodes from the start and keeps the last picture whose time is not after `seconds`.
    const av::Input input = av::openInput(movie);
    if (!input)
        return {};
    const int index = av_find_best_stream(input.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (index < 0)
        return {};
    int error = 0;
    const av::Codec decoder = av::openDecoder(*input->streams[index], 0, &error);
    if (!decoder)
        return {};
    const double unit = av_q2d(input->streams[index]->time_base);
    const av::Packet packet = av::makePacket();
    const av::Frame frame = av::makeFrame();
    av::Frame shown;
    bool more = true;
    while (more) {
        more = av_read_frame(input.get(), packet.get()) >= 0;
        if (more && packet->stream_index != index) {
            av_packet_unref(packet.get());
            continue;
        }
        avcodec_send_packet(decoder.get(), more ? packet.get() : nullptr);
        av_packet_unref(packet.get());
        while (avcodec_receive_frame(decoder.get(), frame.get()) == 0) {
            if (double(frame->best_effort_timestamp) * unit > seconds + 1e-6)
                return scaledPicture(shown ? *shown : *frame, size);
            shown = av::reference(*frame);
            av_frame_unref(frame.get());
        }
    }
    return shown ? scaledPicture(*shown, size) : QImage();
}

double lumaSsim(const QImage &a, const QImage &b)
{
    const QImage x = a.convertToFormat(QImage::Format_RGB888);
    const QImage y = b.convertToFormat(QImage::Format_RGB888);
    const int width = std::min(x.width(), y.width());
    const int height = std::min(x.height(), y.height());
    const auto luma = [&](const QImage &image) {
        std::vector<float> plane(std::size_t(width) * height);
        for (int j = 0; j < height; ++j) {
            for (int i = 0; i < width; ++i) {
                const uchar *pixel = image.constScanLine(j) + 3 * i;
                plane[std::size_t(j) * width + i] = float(0.299 * pixel[0] + 0.587 * pixel[1] + 0.114 * pixel[2]);
            }
        }
        return plane;
    };
    return planeSsim(luma(x), luma(y), width, height);
}

double movieSsim(const QString &a, const QString &b)
{
    struct Reader
    {
        av::Input input;
        av::Codec decoder;
        int index = -1;
        av::Packet packet = av::makePacket();
        bool ended = false;

        explicit Reader(const QString &path)
            : input(av::openInput(path))
        {
            index = input ? av_find_best_stream(input.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0) : -1;
            int error = 0;
            if (index >= 0)
                decoder = av::openDecoder(*input->streams[index], 0, &error);
        }
        bool next(AVFrame *frame)
        {
            if (!decoder)
                return false;
            for (;;) {
                if (avcodec_receive_frame(decoder.get(), frame) == 0)
                    return true;
                if (ended)
                    return false;
                if (av_read_frame(input.get(), packet.get()) < 0) {
                    ended = true;
                    avcodec_send_packet(decoder.get(), nullptr);
                    continue;
                }
                if (packet->stream_index == index)
                    avcodec_send_packet(decoder.get(), packet.get());
                av_packet_unref(packet.get());
            }
        }
    };
    Reader first(a);
    Reader second(b);
    const av::Frame x = av::makeFrame();
    const av::Frame y = av::makeFrame();
    double total = 0;
    int frames = 0;
    while (first.next(x.get()) && second.next(y.get())) {
        const auto plane = [](const AVFrame &frame) {
            std::vector<float> samples(std::size_t(frame.width) * frame.height);
            for (int j = 0; j < frame.height; ++j) {
                for (int i = 0; i < frame.width; ++i)
                    samples[std::size_t(j) * frame.width + i] = frame.data[0][j * frame.linesize[0] + i];
            }
            return samples;
        };
        total += planeSsim(plane(*x), plane(*y), x->width, x->height);
        ++frames;
        av_frame_unref(x.get());
        av_frame_unref(y.get());
    }
    return frames ? total / frames : 0;
}
