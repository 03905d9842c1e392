#include "gifmaker.h"

#include "frameimage.h"
#include "gifwriter.h"
#include "guithread.h"
#include "moviestills.h"

#include <QFuture>
#include <QtConcurrent>

#include <algorithm>
#include <cmath>

void GifFrames::put(int index, const QImage &frame)
{
    const std::lock_guard lock(m_mutex);
    if (index >= int(m_frames.size()))
        m_frames.resize(std::size_t(index) + 1);
    m_frames[std::size_t(index)] = frame;
}

std::vector<QImage> GifFrames::frames() const
{
    const std::lock_guard lock(m_mutex);
    const bool complete = std::none_of(m_frames.begin(), m_frames.end(), [](const QImage &f) { return f.isNull(); });
    return complete ? m_frames : std::vector<QImage>();
}

GifMaker::GifMaker(QString destination, QSize size)
    : m_destination(std::move(destination))
    , m_size(size)
{ }

QSize GifMaker::sizeFor(QSizeF renderSize)
{
    constexpr double longest = 1024;
    if (renderSize.width() <= longest && renderSize.height() <= longest)
        return renderSize.toSize();
    const double scale = std::min(longest / renderSize.width(), longest / renderSize.height());
    return QSize(int(std::lround(renderSize.width() * scale)), int(std::lround(renderSize.height() * scale)));
}

FrameTap GifMaker::frameTap(std::shared_ptr<GifFrames> frames) const
{
    return { frameCount, m_size, [frames](int index, const QImage &frame) { frames->put(index, frame); } };
}

bool GifMaker::createGif(const QString &movie) const
{
    MovieStills stills(movie);
    if (!stills.isOpen() || !std::isfinite(stills.duration()) || m_size.isEmpty())
        return false;
    // Each picture is scaled and quantised on the pool as soon as it is decoded, while the next is sought.
    std::vector<QFuture<PalettedFrame>> quantizing;
    const bool decoded
        = stills.picturesAt(evenlySpreadTimes(stills.duration(), frameCount), [&](int, av::Frame picture) {
              std::shared_ptr<AVFrame> shared(picture.release(), av::FrameDeleter());
              quantizing.push_back(QtConcurrent::run(
                  [shared, size = m_size] { return PalettedFrame::quantize(frameToImage(*shared, size)); }));
          });
    std::vector<PalettedFrame> frames;
    for (QFuture<PalettedFrame> &future : quantizing)
        frames.push_back(future.result());
    return decoded && writeGif(frames, delayHundredths, loopCount, m_destination);
}

bool GifMaker::createGif(const GifFrames &frames) const
{
    const std::vector<QImage> pictures = frames.frames();
    if (pictures.size() != std::size_t(frameCount))
        return false;
    const QList<PalettedFrame> paletted
        = QtConcurrent::blockingMapped(QList<QImage>(pictures.begin(), pictures.end()), &PalettedFrame::quantize);
    return writeGif(
        std::vector<PalettedFrame>(paletted.begin(), paletted.end()), delayHundredths, loopCount, m_destination);
}

void GifMaker::createGifInBackground(
    Source source, std::function<void(const std::optional<QUrl> &gif)> completion) const
{
    QThreadPool::globalInstance()->start(
        [maker = *this, source = std::move(source), completion = std::move(completion)] {
            const bool made = std::holds_alternative<QString>(source)
                ? maker.createGif(std::get<QString>(source))
                : maker.createGif(*std::get<std::shared_ptr<GifFrames>>(source));
            std::optional<QUrl> gif;
            if (made)
                gif = QUrl::fromLocalFile(maker.destination());
            runOnGuiThread([completion, gif] { completion(gif); });
        });
}
