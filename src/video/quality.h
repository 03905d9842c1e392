#pragma once

#include <QString>

#include <optional>

/** How hard the merge's encoders work; the raw values are the texts of the settings and the tool. */
enum class Quality { low, medium, high };

[[nodiscard]] QString rawValue(Quality quality);
/** Exactly "low", "medium" or "high"; nothing for any other text. */
[[nodiscard]] std::optional<Quality> qualityFromRawValue(const QString &text);

/** What the encoders of a movie are told. */
struct EncoderSetting
{
    /** x264's preset. */
    const char *preset;
    /** x264's constant rate factor; 0 is lossless. */
    int crf;
    /** AAC's bit rate in bits per second. */
    int audioBitRate;

    /** The entry of the three-entry table that a quality picks by its ordinal. */
    [[nodiscard]] static EncoderSetting forQuality(Quality quality);
    /** The same picture without loss, to measure what the table's entries keep. */
    [[nodiscard]] static EncoderSetting lossless();
};
