#include "assetfiles.h"

#include "httpbody.h"

#include <httplib.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <vector>

namespace {

constexpr std::array kFolders = { "resource/", "fonts/", "video/", "audio/" };

std::string httpDate(std::time_t time)
{
    std::tm utc {};
    gmtime_r(&time, &utc);
    char out[64];
    std::strftime(out, sizeof out, "%a, %d %b %Y %H:%M:%S GMT", &utc);
    return out;
}

bool allowed(const std::string &relative)
{
    if (relative.find("..") != std::string::npos || relative.find('\\') != std::string::npos)
        return false;
    for (const char *folder : kFolders) {
        if (relative.starts_with(folder) && relative.size() > std::char_traits<char>::length(folder))
            return true;
    }
    return false;
}

} // namespace

AssetFiles::AssetFiles(std::filesystem::path root)
    : m_root(std::move(root))
{ }

std::string AssetFiles::contentType(const std::filesystem::path &file)
{
    std::string ext = file.extension().string();
    for (auto &c : ext)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    static const std::pair<const char *, const char *> types[] = { { ".png", "image/png" }, { ".jpg", "image/jpeg" },
        { ".jpeg", "image/jpeg" }, { ".webp", "image/webp" }, { ".gif", "image/gif" }, { ".svg", "image/svg+xml" },
        { ".ttf", "font/ttf" }, { ".otf", "font/otf" }, { ".mp4", "video/mp4" }, { ".mov", "video/quicktime" },
        { ".mp3", "audio/mpeg" }, { ".m4a", "audio/mp4" }, { ".json", "application/json" } };
    for (const auto &[extension, type] : types) {
        if (ext == extension)
            return type;
    }
    return "application/octet-stream";
}

std::filesystem::path AssetFiles::standIn(const std::string &relative) const
{
    for (const char *folder : kFolders) {
        if (!relative.starts_with(folder))
            continue;
        std::vector<std::filesystem::path> files;
        std::error_code ec;
        for (const auto &entry : std::filesystem::directory_iterator(m_root / folder, ec)) {
            // Pictures that every decoder reads, fonts, videos, sounds: nothing of an unknown kind.
            const std::string type = contentType(entry.path());
            if (entry.is_regular_file(ec) && type != "image/webp" && type != "application/octet-stream"
                && type != "application/json")
                files.push_back(entry.path());
        }
        std::sort(files.begin(), files.end());
        return files.empty() ? std::filesystem::path() : files.front();
    }
    return {};
}

int AssetFiles::serve(const std::string &relative, const httplib::Request &req, httplib::Response &res, bool dropMidway,
    bool standIns) const
{
    std::filesystem::path file = m_root / relative;
    struct stat info
    {
    };
    const auto found = [&] { return ::stat(file.c_str(), &info) == 0 && S_ISREG(info.st_mode); };
    bool usable = allowed(relative) && found();
    if (!usable && standIns) {
        file = standIn(relative);
        usable = !file.empty() && found();
    }
    if (!usable) {
        res.status = 404;
        res.set_content("Not found", "text/plain");
        return 404;
    }
    char etag[64];
    std::snprintf(etag, sizeof etag, "\"%llx-%llx\"", static_cast<unsigned long long>(info.st_size),
        static_cast<unsigned long long>(info.st_mtime));
    const std::string lastModified = httpDate(info.st_mtime);
    res.set_header("ETag", etag);
    res.set_header("Last-Modified", lastModified);
    res.set_header("Cache-Control", "public, max-age=86400");
    res.set_header("Accept-Ranges", "bytes");

    const bool notModified = req.has_header("If-None-Match")
        ? req.get_header_value("If-None-Match") == etag
        : req.get_header_value("If-Modified-Since") == lastModified;
    if (notModified) {
        res.status = 304;
        return 304;
    }
    std::ifstream in(file, std::ios::binary);
    std::string body((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (!in && !in.eof()) {
        res.status = 500;
        res.set_content("Cannot read file", "text/plain");
        return 500;
    }
    HttpBody::send(res, std::move(body), contentType(file), dropMidway);
    return req.ranges.empty() ? 200 : 206;
}
