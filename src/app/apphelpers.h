#pragma once

#include "bgcolor.h"
#include "customratio.h"

#include <QList>
#include <QString>

#include <memory>

/** Small helpers every screen uses: generated names, fonts by weight, points, the application's data files. */
namespace AppHelpers {
/** A time stamp "yyyyMMddHHmmss" of now, the stem of every generated file name. */
[[nodiscard]] QString timestampName();
/** Whole milliseconds since 1970, the name of movies and GIFs. */
[[nodiscard]] QString millisecondsName();
/** "Medium", "Semibold", "Bold" to the matching Montserrat face; any other word to Montserrat-Regular. */
[[nodiscard]] QString fontNameForWeight(const QString &weight);
/** A value in pixels as points of a screen of that scale. */
[[nodiscard]] double toPoints(double value, double screenScale);
/**
 * The canvas sizes of "custom_ratio.json": the video list or the image list. A missing file prints
 * "no file", a broken one "JSON is invalid"; both give an empty list. `path` overrides the shipped file.
 */
[[nodiscard]] QList<std::shared_ptr<CustomRatio>> customRatios(bool video, const QString &path = QString());
/** The colour list of "bgColors.json", with the same failure rules. */
[[nodiscard]] QList<std::shared_ptr<BgColor>> bgColors(const QString &path = QString());
} // namespace AppHelpers
