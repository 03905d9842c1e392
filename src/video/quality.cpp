#include "quality.h"

#include <array>

namespace {

// By ordinal: low, medium, high. x264's presets trade speed for bits at a given picture quality; the
// crf sets that quality. `high` keeps an SSIM of at least 0.98 against the lossless composite on the
// merge benchmark's 1080 x 1920 movie (see bench/video).
constexpr std::array<EncoderSetting, 3> table { {
    { "veryfast", 28, 96000 },
    { "veryfast", 23, 128000 },
    { "veryfast", 18, 192000 },
} };

constexpr std::array<const char *, 3> rawValues { "low", "medium", "high" };

} // namespace

QString rawValue(Quality quality)
{
    return QString::fromLatin1(rawValues.at(std::size_t(quality)));
}

std::optional<Quality> qualityFromRawValue(const QString &text)
{
    for (std::size_t i = 0; i < rawValues.size(); ++i) {
        if (text == QLatin1String(rawValues.at(i)))
            return Quality(i);
    }
    return std::nullopt;
}

EncoderSetting EncoderSetting::forQuality(Quality quality)
{
    return table.at(std::size_t(quality));
}

EncoderSetting EncoderSetting::lossless()
{
    return { "veryfast", 0, 192000 };
}
