#pragma once

#include "frametap.h"
#include "gifwriter.h"

#include <QFuture>
#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <variant>
#include <vector>

/**
 * The GIF's frames, each quantised on the thread pool as soon as it is handed over, so that little is
 * left to do once the last one is in, and only the small paletted frames are kept.
 */
class GifFrames
{
public:
    /** Starts making frame `index` from what `picture` gives, on the pool; any thread. */
    void put(int index, std::function<QImage()> picture);
    /** The paletted frames in order, waiting for those still in work; empty when any is missing. */
    [[nodiscard]] std::vector<PalettedFrame> take();

private:
    std::mutex m_mutex;
    std::vector<QFuture<PalettedFrame>> m_frames;
};

/**
 * A GIF of a movie: 16 frames spread evenly over it, 0.2 seconds each, looping for ever, at `size`.
 * The frames come from the movie itself, or from a merge that is writing it (its tap), which spares
 * decoding the movie again. Each frame gets its own palette with error diffusion; the frames are
 * quantised in parallel. Nothing is left under the destination when making fails.
 */
class GifMaker
{
public:
    static constexpr int frameCount = gifFrameCount;
    static constexpr int delayHundredths = 20;
    static constexpr int loopCount = 0;

    GifMaker(QString destination, QSize size);

    /** The GIF's size for a render size: unchanged up to 1024 a side, else the longer side 1024. */
    [[nodiscard]] static QSize sizeFor(QSizeF renderSize);

    [[nodiscard]] const QString &destination() const { return m_destination; }
    [[nodiscard]] QSize size() const { return m_size; }

    /** A tap for `Merge::overlayVideo` that puts the GIF's frames into `frames`. */
    [[nodiscard]] FrameTap frameTap(std::shared_ptr<GifFrames> frames) const;

    /** Makes the GIF from a movie file; blocks, so call it off the GUI thread. */
    bool createGif(const QString &movie) const;
    /** Makes the GIF from the frames a tap took; blocks until they are quantised. */
    bool createGif(GifFrames &frames) const;

    using Source = std::variant<QString, std::shared_ptr<GifFrames>>;
    /** Makes the GIF on the thread pool; `completion` gets its URL, or nothing, on the GUI thread. */
    void createGifInBackground(Source source, std::function<void(const std::optional<QUrl> &gif)> completion) const;

private:
    QString m_destination;
    QSize m_size;
};
