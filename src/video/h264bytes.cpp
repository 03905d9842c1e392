#include "h264bytes.h"

#include <QtEndian>

namespace H264Bytes {

namespace {

void appendUnit(QByteArray &out, const uint8_t *unit, qsizetype size)
{
    char length[4];
    qToBigEndian<quint32>(quint32(size), length);
    out.append(length, 4);
    out.append(reinterpret_cast<const char *>(unit), size);
}

// The position just past the next start code (00 00 01) at or after `from`, or `size` when there is none.
qsizetype afterStartCode(const uint8_t *data, qsizetype size, qsizetype from, qsizetype *codeAt)
{
    for (qsizetype i = from; i + 2 < size; ++i) {
        if (data[i] == 0 && data[i + 1] == 0 && data[i + 2] == 1) {
            *codeAt = i;
            return i + 3;
        }
    }
    *codeAt = size;
    return size;
}

} // namespace

bool isAvcCWithFourByteLengths(const uint8_t *extradata, int size)
{
    return extradata && size >= 7 && extradata[0] == 1 && (extradata[4] & 3) == 3;
}

std::optional<QByteArray> parameterSets(const uint8_t *extradata, int size)
{
    if (!isAvcCWithFourByteLengths(extradata, size))
        return std::nullopt;
    QByteArray out;
    qsizetype at = 5;
    // Sequence parameter sets (count in the low five bits), then picture parameter sets (a whole byte).
    for (int list = 0; list < 2; ++list) {
        if (at >= size)
            return std::nullopt;
        const int count = list == 0 ? (extradata[at] & 0x1f) : extradata[at];
        ++at;
        for (int i = 0; i < count; ++i) {
            if (at + 2 > size)
                return std::nullopt;
            const qsizetype length = qFromBigEndian<quint16>(extradata + at);
            at += 2;
            if (at + length > size)
                return std::nullopt;
            appendUnit(out, extradata + at, length);
            at += length;
        }
    }
    return out;
}

QByteArray lengthPrefixed(const uint8_t *data, int size)
{
    QByteArray out;
    qsizetype codeAt = 0;
    qsizetype start = afterStartCode(data, size, 0, &codeAt);
    while (start < size) {
        const qsizetype next = afterStartCode(data, size, start, &codeAt);
        qsizetype end = codeAt;
        // The zero before a four-byte start code belongs to the code, not to the unit.
        while (end > start && data[end - 1] == 0)
            --end;
        appendUnit(out, data + start, end - start);
        start = next;
    }
    return out;
}

} // namespace H264Bytes
