#pragma once

#include "faultsettings.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

/**
 * The content server: the main API under "api/public/api/" (with the font, audio, shape and stock-video
 * libraries' endpoints), the promotion API under "promo/api/public/api/", and the pack's assets under
 * "content/" (the `prefix_url` of every template). Runs on its own threads; every member is thread-safe.
 * Each instance is self-contained, so several can run in one process.
 */
class ContentServer
{
public:
    ContentServer();
    ~ContentServer();
    ContentServer(const ContentServer &) = delete;
    ContentServer &operator=(const ContentServer &) = delete;

    /**
     * Loads the pack in `contentDir` and starts listening; `port` 0 takes a free one.
     * Returns the bound port, or 0 on failure with the reason in errorString().
     */
    int start(const std::filesystem::path &contentDir, const std::string &bindAddress = "127.0.0.1", int port = 0);
    /** Stops listening and waits for the worker threads; safe to call twice. */
    void stop();

    [[nodiscard]] bool isRunning() const;
    [[nodiscard]] int port() const;
    /** "http://<address>:<port>/" */
    [[nodiscard]] std::string baseUrl() const;
    /** The main API's base, ending in "api/public/api/". */
    [[nodiscard]] std::string apiBase() const;
    /** The promotion API's base, ending in "promo/api/public/api/". */
    [[nodiscard]] std::string promotionBase() const;
    /** The asset base that answers carry in `prefix_url`. */
    [[nodiscard]] std::string contentBase() const;
    [[nodiscard]] std::string errorString() const;

    /** One line per request on stderr; on by default. */
    void setAccessLog(bool enabled);

    [[nodiscard]] FaultSettings faults() const;
    /** Replaces every fault switch at once (also how the admin endpoint applies its changes). */
    void setFaults(const FaultSettings &faults);
    void resetFaults() { setFaults(FaultSettings {}); }
    void setLatency(std::chrono::milliseconds latency);
    /** Closes the listener (connections are refused) or opens it again on the same port. */
    void setRefuseConnections(bool refuse);
    void setHttp500(bool enabled);
    void setMalformedBody(bool enabled);
    void setDropMidBody(bool enabled);
    /** The next `times` calls of `endpoint` (-1: all until cleared) answer `code` in the body. */
    void forceCode(const std::string &endpoint, int code, int times = 1, bool withoutNewToken = false);
    void clearForcedCode();
    void setTokenLifetime(std::chrono::seconds lifetime);
    /** Hostile names in documents, font catalogs and picture lists; absolute ones point into `target`. */
    void setHostileNames(bool enabled, const std::string &target = "/tmp");

    /** GET this path of a running server answers `identity()`: how a client knows the server as this one. */
    static constexpr const char *identityPath = "/__identity";
    [[nodiscard]] static std::string identity();

    /** Keeps the body of every main API call from now on, for tests that count calls; off by default. */
    void setRecordRequests(bool enabled);
    /** The bodies of the main API calls of `endpoint` recorded so far, oldest first. */
    [[nodiscard]] std::vector<nlohmann::json> receivedRequests(const std::string &endpoint) const;

    /**
     * Where the generated content pack lies: $QUILLET_CONTENT_DIR, else the build's "content" folder,
     * else "../content" beside the running executable. Empty when none holds an "index.json".
     */
    [[nodiscard]] static std::filesystem::path defaultContentDir();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
