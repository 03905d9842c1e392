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

    /**
     * Answers a GET or HEAD for `relative` (the path below the content base); returns the HTTP status. With
     * `standIns`, a name below a folder that names no file of it (a hostile one) gets a file of that folder.
     */
    int serve(const std::string &relative, const httplib::Request &req, httplib::Response &res, bool dropMidway,
        bool standIns = false) const;

    [[nodiscard]] static std::string contentType(const std::filesystem::path &file);

private:
    /** The first file of the folder that `relative` starts with, in name order; empty when there is none. */
    [[nodiscard]] std::filesystem::path standIn(const std::string &relative) const;

    std::filesystem::path m_root;
};
