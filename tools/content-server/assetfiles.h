#pragma once

#include <filesystem>
#include <string>

namespace httplib {
struct Request;
struct Response;
} // namespace httplib

/**
 * Serves the pack's asset folders ("resource/", "fonts/", "video/", "audio/") with their content types,
 * ETag and Last-Modified validators (answering 304 to a matching conditional request) and byte ranges.
 */
class AssetFiles
{
public:
    explicit AssetFiles(std::filesystem::path root);

    /** Answers a GET or HEAD for `relative` (the path below the content base); returns the HTTP status. */
    int serve(const std::string &relative, const httplib::Request &req, httplib::Response &res, bool dropMidway) const;

    [[nodiscard]] static std::string contentType(const std::filesystem::path &file);

private:
    std::filesystem::path m_root;
};
