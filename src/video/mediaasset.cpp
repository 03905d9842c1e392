#include "mediaasset.h"

#include "avhandles.h"

extern "C" {
#include <libavutil/display.h>
}

namespace {

QTransform displayMatrix(const AVStream &stream)
{
    size_t size = 0;
    const auto *matrix
        = reinterpret_cast<const int32_t *>(av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &size));
    if (!matrix || size < 9 * sizeof(int32_t))
        return {};
    // a, b, c, d, tx and ty are 16.16 fixed point; the projective column is always 0, 0, 1 for movies.
    const auto fixed = [&](int i) { return matrix[i] / 65536.0; };
    return QTransform(fixed(0), fixed(1), fixed(3), fixed(4), fixed(6), fixed(7));
}

} // namespace

MediaAsset::MediaAsset(QString path)
    : m_path(std::move(path))
{
    const av::Input input = av::openInput(m_path);
    if (!input)
        return;
    if (input->duration != AV_NOPTS_VALUE && input->duration >= 0)
        m_duration = MediaTime::make(input->duration, AV_TIME_BASE);
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        const AVStream &stream = *input->streams[i];
        const AVCodecParameters &parameters = *stream.codecpar;
        // Cover art is a picture, not a video track.
        if (parameters.codec_type == AVMEDIA_TYPE_VIDEO && !(stream.disposition & AV_DISPOSITION_ATTACHED_PIC))
            m_tracks.push_back(
                { MediaTrack::Type::video, int(i), QSize(parameters.width, parameters.height), displayMatrix(stream) });
        else if (parameters.codec_type == AVMEDIA_TYPE_AUDIO)
            m_tracks.push_back({ MediaTrack::Type::audio, int(i), QSize(), QTransform() });
    }
}

std::vector<MediaTrack> MediaAsset::tracksWithMediaType(MediaTrack::Type type) const
{
    std::vector<MediaTrack> tracks;
    for (const MediaTrack &track : m_tracks) {
        if (track.type == type)
            tracks.push_back(track);
    }
    return tracks;
}
