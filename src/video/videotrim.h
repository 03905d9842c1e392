#pragma once

#include <QString>

#include <functional>

/**
 * The cut of the trimmer: the part of a movie between two times, in a new file.
 *
 * The cut is exact to the picture: the output starts with the picture shown at the start time and ends
 * with the last one shown before the end time. Whole groups of pictures between the two (from a key
 * frame to the next) are copied packet by packet; only the partial group at each end is decoded and
 * encoded again (H.264, no B-frames), its parameter sets carried in its first picture so that a decoder
 * takes the change. A movie that is not H.264 with four-byte unit lengths, or whose range holds no whole
 * group, is encoded again as a whole. The sound is copied packet by packet, from the first packet at or
 * after the start; a sound that the container cannot hold is left out.
 */
namespace VideoTrim {

struct Request
{
    QString input;
    double start = 0; // seconds
    double end = 0; // seconds
    QString output; // its suffix names the container (".mov", ".mp4")
    int crf = 18; // the constant rate factor of what is encoded again
};

/** The fraction done, from 0 to 1; returning false stops the cut. */
using Progress = std::function<bool(double fraction)>;

/** Makes the cut; empty on success, else why not. The output exists only after a cut that succeeded. Blocking. */
[[nodiscard]] QString cut(const Request &request, const Progress &progress = {});

} // namespace VideoTrim
