#include "hostilenames.h"

#include <functional>

namespace HostileNames {

namespace {

enum Form : std::size_t {
    EncodedParent,
    Parent,
    Absolute,
    FileAddress,
    Backslashes,
    Nul,
    Overlong,
    // Only for fonts: a server-chosen name that a design picture in Documents already has.
    DesignPicture,
    FormCount
};

constexpr std::size_t overlongLength = 300;

std::string stem(std::size_t n)
{
    return "escape" + std::to_string(n % FormCount);
}

/** Every string under `key` anywhere in `value`, by a running count. */
void replaceAll(nlohmann::json &value, const std::string &key, std::size_t &n,
    const std::function<std::string(std::size_t n, const std::string &old)> &make)
{
    if (value.is_object()) {
        for (auto it = value.begin(); it != value.end(); ++it) {
            if (it.key() == key && it->is_string())
                *it = make(n++, it->get<std::string>());
            else
                replaceAll(*it, key, n, make);
        }
    } else if (value.is_array()) {
        for (auto &child : value)
            replaceAll(child, key, n, make);
    }
}

std::string extensionOf(const std::string &name, const std::string &fallback)
{
    const auto dot = name.find_last_of('.');
    return dot == std::string::npos || name.size() - dot > 5 ? fallback : name.substr(dot);
}

} // namespace

std::size_t count()
{
    return FormCount;
}

std::string name(std::size_t n, const std::string &ext, const std::string &target)
{
    const std::string file = stem(n) + ext;
    switch (static_cast<Form>(n % FormCount)) {
    case EncodedParent:
        return "..%2F..%2F..%2F..%2F" + file;
    case Parent:
        return "../../../../" + file;
    case Absolute:
        return target + "/" + file;
    case FileAddress:
        return "file://" + target + "/" + file;
    case Backslashes:
        return "..\\..\\..\\..\\" + file;
    case Nul:
        return file + std::string(1, '\0') + ".png";
    case Overlong:
        return std::string(overlongLength, 'a') + ext;
    case DesignPicture:
    case FormCount:
        break;
    }
    return "20200101000000.jpg";
}

std::string address(std::size_t n, const std::string &base, const std::string &folder, const std::string &ext,
    const std::string &target)
{
    const std::string hostile = name(n, ext, target);
    const Form form = static_cast<Form>(n % FormCount);
    return form == Absolute || form == FileAddress ? hostile : base + folder + hostile;
}

void rewrite(const std::string &endpoint, nlohmann::json &data, const std::string &base, const std::string &target)
{
    std::size_t n = 0;
    auto named = [&](const std::string &fallback) {
        return [&target, fallback](
                   std::size_t i, const std::string &old) { return name(i, extensionOf(old, fallback), target); };
    };
    auto addressed = [&](const std::string &folder, const std::string &fallback) {
        return [&base, &target, folder, fallback](std::size_t i, const std::string &old) {
            return address(i, base, folder, extensionOf(old, fallback), target);
        };
    };
    if (endpoint == "getJsonData") {
        for (const char *key : { "background_image", "frame_image", "sticker_image", "image_sticker_image",
                 "texture_image", "bg_image", "pip_image", "sample_image" })
            replaceAll(data, key, n, named(".png"));
        replaceAll(data, "fontPath", n, named(".ttf"));
    } else if (endpoint == "getAllFontsByCatalogId") {
        replaceAll(data, "font_url", n, addressed("fonts/", ".ttf"));
    } else if (endpoint == "getCatalogsByTypeInWebp") {
        replaceAll(data, "webp_thumbnail_img", n, addressed("resource/", ".webp"));
    } else if (endpoint == "getImagesByCatalogId" || endpoint == "getTemplateWithCatalogs") {
        for (const char *key : { "original_img", "compressed_img", "thumbnail_img", "webp_original_img",
                 "webp_thumbnail_img", "sample_image" })
            replaceAll(data, key, n, addressed("resource/", ".png"));
    }
}

} // namespace HostileNames
