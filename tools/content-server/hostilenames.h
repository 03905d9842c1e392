#pragma once

#include <string>

#include <nlohmann/json.hpp>

/**
 * The names a hostile server hands out, so that tests see a client keep every file inside its own
 * folders: percent-encoded and plain "../", absolute paths and "file:" addresses into `target` (a folder
 * outside the client's), backslashes, NUL, names longer than any file system takes, and a font named like
 * a design picture. A name of form n names the file "escape<n>" with the extension of its kind, so a test
 * can plant a file of that name in `target` and see whether it was read.
 */
namespace HostileNames {

/** How many forms there are; the n-th name uses form n modulo this. */
[[nodiscard]] std::size_t count();

/**
 * The n-th name as a document names a file (no folder): `ext` such as ".png". Absolute and "file:" forms point
 * into `target`.
 */
[[nodiscard]] std::string name(std::size_t n, const std::string &ext, const std::string &target);

/** The n-th name as an address below `base` + `folder` ("resource/", "fonts/"), or as it stands when absolute. */
[[nodiscard]] std::string address(std::size_t n, const std::string &base, const std::string &folder,
    const std::string &ext, const std::string &target);

/**
 * Rewrites the `data` of one API answer: the pictures, fonts and video of a template document, the fonts of
 * a font catalog (their `font_url`), the thumbnails of font catalogs, and the pictures of image lists and
 * template cards. Other answers stay as they are.
 */
void rewrite(const std::string &endpoint, nlohmann::json &data, const std::string &base, const std::string &target);

} // namespace HostileNames
