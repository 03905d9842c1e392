#pragma once

#include <QByteArray>

#include <optional>

/**
 * The two ways H.264 pictures are framed: start codes (what an encoder gives), and each unit after its
 * length (what an MPEG-4 file holds, with the parameter sets in an "avcC" record beside the stream).
 */
namespace H264Bytes {

/** Whether an avcC record frames its units with four-byte lengths, the framing that this code writes. */
[[nodiscard]] bool isAvcCWithFourByteLengths(const uint8_t *extradata, int size);

/** The sequence and picture parameter sets of an avcC record, each after its four-byte length. */
[[nodiscard]] std::optional<QByteArray> parameterSets(const uint8_t *extradata, int size);

/** Units framed by start codes, framed by four-byte lengths instead. */
[[nodiscard]] QByteArray lengthPrefixed(const uint8_t *data, int size);

} // namespace H264Bytes
