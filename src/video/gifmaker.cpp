#include "gifmaker.h"

#include "frameimage.h"
#include "gifwriter.h"
#include "guithread.h"
#include "moviestills.h"

#include <QFuture>
#include <QtConcurrent>

#include <cmath>

void GifFrames::put(int index, std::function<QImage()> picture)
{
    QFuture<PalettedFrame> quantizing
        = QtConcurrent::run([picture = std::move(picture)] { return PalettedFrame::quantize(picture()); });
    const std::lock_guard lock(m_mutex);
    if (index >= int(m_frames.size()))
        m_frames.resize(std::size_t(index) + 1);
    m_frames[std::size_t(index)] = std::move(quantizing);
}

std::vector<PalettedFrame> GifFrames::take()
{
    std::vector<QFuture<PalettedFrame>> futures;
    {
        const std::lock_guard lock(m_mutex);
        futures.swap(m_frames);
    }
    std::vector<PalettedFrame> frames;
    for (QFuture<PalettedFrame> &future : futures) {
        // A frame never handed over has an empty future, which counts as cancelled.
        future.waitForFinished();
        if (future.isCanceled() || future.resultCount() == 0)
            return {};
        frames.push_back(future.result());
    }
    return frames;
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
    return { frameCount, m_size,
        [frames](int index, const QImage &frame) { frames->put(index, [frame] { return frame; }); } };
}

bool GifMaker::createGif(const QString &movie) const
{
    MovieStills stills(movie);
    if (!stills.isOpen() || !std::isfinite(stills.duration()) || m_size.isEmpty())
        return false;
    // Each picture is scaled and quantised on the pool as soon as it is decoded, while the next is sought.
    GifFrames frames;
    const bool decoded
        = stills.picturesAt(evenlySpreadTimes(stills.duration(), frameCount), [&](int index, av::Frame picture) {
              std::shared_ptr<AVFrame> shared(picture.release(), av::FrameDeleter());
              frames.put(index, [shared, size = m_size] { return frameToImage(*shared, size); });
          });
    return createGif(frames) && decoded;
}

bool GifMaker::createGif(GifFrames &frames) const
{
    const std::vector<PalettedFrame> paletted = frames.take();
    return paletted.size() == std::size_t(frameCount) && writeGif(paletted, delayHundredths, loopCount, m_destination);
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
