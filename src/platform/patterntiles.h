#pragma once

#include <QImage>
#include <QSize>

/**
 * The pattern tiles of the editor, drawn in code: "pattern_1" to "pattern_114", the textures that fill
 * letters and backgrounds, and "patternbg_1" to "patternbg_4", the softer background patterns. Every
 * tile repeats seamlessly; each number always gives the same tile.
 */
namespace PatternTiles {
inline constexpr int textureCount = 114;
inline constexpr int backgroundCount = 4;
/** Texture tile `number` (1 to `textureCount`). */
[[nodiscard]] QImage texture(int number, const QSize &size);
/** Background pattern `number` (1 to `backgroundCount`). */
[[nodiscard]] QImage background(int number, const QSize &size);
} // namespace PatternTiles
