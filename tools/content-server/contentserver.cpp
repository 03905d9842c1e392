#include "contentserver.h"

#include "assetfiles.h"
#include "contentapi.h"
#include "contentpack.h"
#include "hostilenames.h"
#include "httpbody.h"
#include "tokenregistry.h"

#include <httplib.h>
#include <nlohmann/json.hpp>

#include <cstdio>
#include <mutex>
#include <optional>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

std::string bearerToken(const httplib::Request &req)
{
    const std::string header = req.get_header_value("Authorization");
    constexpr std::string_view prefix = "Bearer ";
    return header.starts_with(prefix) ? header.substr(prefix.size()) : std::string();
}

bool fromLoopback(const httplib::Request &req)
{
    return req.remote_addr == "127.0.0.1" || req.remote_addr == "::1" || req.remote_addr == "::ffff:127.0.0.1";
}

} // namespace

struct ContentServer::Private
{
    /** One listening socket with its accept thread; replaced whole when connections are refused for a while. */
    struct Listener
    {
        httplib::Server server;
        std::thread thread;
    };

    ContentPack pack;
    TokenRegistry tokens;
    std::optional<ContentApi> api;
    std::optional<AssetFiles> assets;

    mutable std::mutex mutex; // guards everything below
    FaultSettings faults;
    std::string bindAddress;
    int port = 0;
    std::string error;
    bool accessLog = true;
    bool started = false;
    bool recordRequests = false;
    std::vector<std::pair<std::string, nlohmann::json>> received;

    std::mutex listenerMutex; // guards the listener and the refusal thread
    std::unique_ptr<Listener> listener;
    std::thread refusalThread;

    bool openListener(int wantedPort);
    void closeListener();
    void applyRefusal(bool refuse);
    void routes(httplib::Server &server);
    void handleApi(const httplib::Request &req, httplib::Response &res, bool promotion);
    void handleAdmin(const httplib::Request &req, httplib::Response &res);
    FaultSettings takeFaults(const std::string &endpoint, bool &forced);
    void log(const httplib::Request &req, const std::string &code, Clock::time_point start) const;
    std::string contentBaseFor(const httplib::Request &req) const;
};

bool ContentServer::Private::openListener(int wantedPort)
{
    auto fresh = std::make_unique<Listener>();
    // Idle keep-alive connections hold a worker, and closing the listener waits for the workers.
    fresh->server.set_keep_alive_timeout(1);
    // Address reuse for a quick restart, but never a port shared with another listener.
    fresh->server.set_socket_options([](socket_t sock) {
        int yes = 1;
        setsockopt(sock, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    routes(fresh->server);
    std::string address;
    {
        std::lock_guard lock(mutex);
        address = bindAddress;
    }
    int bound = wantedPort;
    if (wantedPort == 0)
        bound = fresh->server.bind_to_any_port(address);
    else if (!fresh->server.bind_to_port(address, wantedPort))
        bound = -1;
    if (bound <= 0) {
        std::lock_guard lock(mutex);
        error = "cannot listen on " + address + ":" + std::to_string(wantedPort);
        return false;
    }
    auto *server = &fresh->server;
    fresh->thread = std::thread([server] { server->listen_after_bind(); });
    const auto deadline = Clock::now() + std::chrono::seconds(5);
    while (!server->is_running() && Clock::now() < deadline)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    {
        std::lock_guard lock(mutex);
        port = bound;
    }
    listener = std::move(fresh);
    return true;
}

void ContentServer::Private::closeListener()
{
    if (!listener)
        return;
    listener->server.stop();
    if (listener->thread.joinable())
        listener->thread.join();
    listener.reset();
}

void ContentServer::Private::applyRefusal(bool refuse)
{
    // Caller holds listenerMutex. The port is kept so that clients find the server again afterwards.
    if (refuse) {
        closeListener();
        return;
    }
    if (!listener) {
        int samePort = 0;
        {
            std::lock_guard lock(mutex);
            samePort = port;
        }
        openListener(samePort);
    }
}

void ContentServer::Private::routes(httplib::Server &server)
{
    server.Post(R"(/api/public/api/([A-Za-z0-9_]+))",
        [this](const httplib::Request &req, httplib::Response &res) { handleApi(req, res, false); });
    server.Post(R"(/promo/api/public/api/([A-Za-z0-9_]+))",
        [this](const httplib::Request &req, httplib::Response &res) { handleApi(req, res, true); });
    server.Get(R"(/content/(.+))", [this](const httplib::Request &req, httplib::Response &res) {
        const auto start = Clock::now();
        const FaultSettings current = [this] {
            std::lock_guard lock(mutex);
            return faults;
        }();
        std::this_thread::sleep_for(current.latency);
        const int status = assets->serve(req.matches[1].str(), req, res, current.dropMidBody, current.hostileNames);
        log(req, std::to_string(status), start);
    });
    server.Get(identityPath,
        [](const httplib::Request &, httplib::Response &res) { res.set_content(identity(), "application/json"); });
    server.Get(
        "/__admin/faults", [this](const httplib::Request &req, httplib::Response &res) { handleAdmin(req, res); });
    server.Post(
        "/__admin/faults", [this](const httplib::Request &req, httplib::Response &res) { handleAdmin(req, res); });
}

FaultSettings ContentServer::Private::takeFaults(const std::string &endpoint, bool &forced)
{
    std::lock_guard lock(mutex);
    FaultSettings current = faults;
    forced = !faults.forcedEndpoint.empty() && faults.forcedEndpoint == endpoint && faults.forcedTimes != 0;
    if (forced && faults.forcedTimes > 0 && --faults.forcedTimes == 0)
        faults.forcedEndpoint.clear();
    return current;
}

std::string ContentServer::Private::contentBaseFor(const httplib::Request &req) const
{
    const std::string host = req.get_header_value("Host");
    if (!host.empty())
        return "http://" + host + "/content/";
    std::lock_guard lock(mutex);
    return "http://" + bindAddress + ":" + std::to_string(port) + "/content/";
}

void ContentServer::Private::handleApi(const httplib::Request &req, httplib::Response &res, bool promotion)
{
    const auto start = Clock::now();
    const std::string endpoint = req.matches[1].str();
    bool forced = false;
    const FaultSettings current = takeFaults(endpoint, forced);
    std::this_thread::sleep_for(current.latency);
    if (current.http500) {
        res.status = 500;
        HttpBody::send(res, "Internal Server Error", "text/plain", current.dropMidBody);
        log(req, "http-500", start);
        return;
    }
    if (current.malformedBody) {
        HttpBody::send(res, "<html><body><h1>502 Bad Gateway</h1></body></html>", "text/html", current.dropMidBody);
        log(req, "not-json", start);
        return;
    }
    nlohmann::json envelope;
    const bool known = promotion ? ContentApi::knowsPromotion(endpoint) : ContentApi::knows(endpoint);
    const nlohmann::json request
        = req.body.empty() ? nlohmann::json::object() : nlohmann::json::parse(req.body, nullptr, false);
    if (!promotion) {
        std::lock_guard lock(mutex);
        if (recordRequests)
            received.emplace_back(endpoint, request);
    }
    if (!known) {
        res.status = 404;
        envelope = ContentApi::envelope(404, "Unknown endpoint.");
    } else if (forced) {
        envelope = api->forced(current.forcedCode, bearerToken(req), !current.forcedWithoutNewToken);
    } else if (request.is_discarded()) {
        envelope = ContentApi::envelope(201, "Request body is not valid JSON.");
    } else if (promotion) {
        envelope = api->answerPromotion(endpoint, request, contentBaseFor(req));
    } else {
        envelope = api->answer(endpoint, request, bearerToken(req), contentBaseFor(req), current.tokenLifetime);
        if (current.hostileNames && envelope.contains("data"))
            HostileNames::rewrite(endpoint, envelope["data"], contentBaseFor(req), current.hostileTarget);
    }
    const std::string code = std::to_string(envelope.value("code", 0));
    HttpBody::send(res, envelope.dump(), "application/json", current.dropMidBody);
    log(req, code, start);
}

void ContentServer::Private::handleAdmin(const httplib::Request &req, httplib::Response &res)
{
    if (!fromLoopback(req)) {
        res.status = 403;
        return;
    }
    if (req.method == "POST") {
        const auto changes = nlohmann::json::parse(req.body, nullptr, false);
        if (!changes.is_object()) {
            res.status = 400;
            res.set_content(R"({"error":"body must be a JSON object"})", "application/json");
            return;
        }
        bool refuse = false;
        {
            std::lock_guard lock(mutex);
            faults.apply(changes);
            refuse = faults.refuseConnections;
        }
        // Closing the listener from one of its own workers would wait on itself, so a helper thread does it;
        // with refuse_connections_ms it opens the listener again after that time.
        const int refuseMs = changes.value("refuse_connections_ms", 0);
        if (refuse || refuseMs > 0) {
            std::lock_guard lock(listenerMutex);
            if (refusalThread.joinable())
                refusalThread.join();
            refusalThread = std::thread([this, refuseMs] {
                std::lock_guard inner(listenerMutex);
                applyRefusal(true);
                if (refuseMs <= 0)
                    return;
                std::this_thread::sleep_for(std::chrono::milliseconds(refuseMs));
                {
                    std::lock_guard state(mutex);
                    faults.refuseConnections = false;
                }
                applyRefusal(false);
            });
        }
    }
    std::lock_guard lock(mutex);
    res.set_content(faults.toJson().dump(), "application/json");
}

void ContentServer::Private::log(const httplib::Request &req, const std::string &code, Clock::time_point start) const
{
    {
        std::lock_guard lock(mutex);
        if (!accessLog)
            return;
    }
    const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
    std::fprintf(
        stderr, "%s %s %s %lldms\n", req.method.c_str(), req.path.c_str(), code.c_str(), static_cast<long long>(ms));
}

ContentServer::ContentServer()
    : d(std::make_unique<Private>())
{ }

ContentServer::~ContentServer()
{
    stop();
}

int ContentServer::start(const std::filesystem::path &contentDir, const std::string &bindAddress, int port)
{
    stop();
    std::string error;
    if (!d->pack.load(contentDir, error)) {
        std::lock_guard lock(d->mutex);
        d->error = "content pack: " + error;
        return 0;
    }
    d->api.emplace(d->pack, d->tokens);
    d->assets.emplace(contentDir);
    {
        std::lock_guard lock(d->mutex);
        d->bindAddress = bindAddress;
        d->error.clear();
    }
    std::lock_guard lock(d->listenerMutex);
    if (!d->openListener(port))
        return 0;
    std::lock_guard state(d->mutex);
    d->started = true;
    return d->port;
}

void ContentServer::stop()
{
    std::thread refusal;
    {
        std::lock_guard lock(d->listenerMutex);
        refusal = std::move(d->refusalThread);
    }
    if (refusal.joinable())
        refusal.join();
    std::lock_guard lock(d->listenerMutex);
    d->closeListener();
    std::lock_guard state(d->mutex);
    d->started = false;
}

bool ContentServer::isRunning() const
{
    std::lock_guard lock(d->mutex);
    return d->started;
}

int ContentServer::port() const
{
    std::lock_guard lock(d->mutex);
    return d->port;
}

std::string ContentServer::baseUrl() const
{
    std::lock_guard lock(d->mutex);
    const std::string host = d->bindAddress == "0.0.0.0" || d->bindAddress.empty() ? "127.0.0.1" : d->bindAddress;
    return "http://" + host + ":" + std::to_string(d->port) + "/";
}

std::string ContentServer::apiBase() const
{
    return baseUrl() + "api/public/api/";
}

std::string ContentServer::promotionBase() const
{
    return baseUrl() + "promo/api/public/api/";
}

std::string ContentServer::contentBase() const
{
    return baseUrl() + "content/";
}

std::string ContentServer::errorString() const
{
    std::lock_guard lock(d->mutex);
    return d->error;
}

void ContentServer::setAccessLog(bool enabled)
{
    std::lock_guard lock(d->mutex);
    d->accessLog = enabled;
}

FaultSettings ContentServer::faults() const
{
    std::lock_guard lock(d->mutex);
    return d->faults;
}

void ContentServer::setFaults(const FaultSettings &faults)
{
    bool refusalChanged = false;
    {
        std::lock_guard lock(d->mutex);
        refusalChanged = d->faults.refuseConnections != faults.refuseConnections;
        d->faults = faults;
    }
    if (refusalChanged) {
        std::lock_guard lock(d->listenerMutex);
        if (isRunning())
            d->applyRefusal(faults.refuseConnections);
    }
}

void ContentServer::setLatency(std::chrono::milliseconds latency)
{
    auto f = faults();
    f.latency = latency;
    setFaults(f);
}

void ContentServer::setRefuseConnections(bool refuse)
{
    auto f = faults();
    f.refuseConnections = refuse;
    setFaults(f);
}

void ContentServer::setHttp500(bool enabled)
{
    auto f = faults();
    f.http500 = enabled;
    setFaults(f);
}

void ContentServer::setMalformedBody(bool enabled)
{
    auto f = faults();
    f.malformedBody = enabled;
    setFaults(f);
}

void ContentServer::setDropMidBody(bool enabled)
{
    auto f = faults();
    f.dropMidBody = enabled;
    setFaults(f);
}

void ContentServer::forceCode(const std::string &endpoint, int code, int times, bool withoutNewToken)
{
    auto f = faults();
    f.forcedEndpoint = endpoint;
    f.forcedCode = code;
    f.forcedTimes = times;
    f.forcedWithoutNewToken = withoutNewToken;
    setFaults(f);
}

void ContentServer::clearForcedCode()
{
    forceCode({}, 0);
}

void ContentServer::setTokenLifetime(std::chrono::seconds lifetime)
{
    auto f = faults();
    f.tokenLifetime = lifetime;
    setFaults(f);
}

void ContentServer::setHostileNames(bool enabled, const std::string &target)
{
    auto f = faults();
    f.hostileNames = enabled;
    f.hostileTarget = target;
    setFaults(f);
}

std::string ContentServer::identity()
{
    return R"({"name":"quillet-content-server"})";
}

void ContentServer::setRecordRequests(bool enabled)
{
    std::lock_guard lock(d->mutex);
    d->recordRequests = enabled;
}

std::vector<nlohmann::json> ContentServer::receivedRequests(const std::string &endpoint) const
{
    std::lock_guard lock(d->mutex);
    std::vector<nlohmann::json> bodies;
    for (const auto &[name, body] : d->received) {
        if (name == endpoint)
            bodies.push_back(body);
    }
    return bodies;
}

std::filesystem::path ContentServer::defaultContentDir()
{
    std::vector<std::filesystem::path> candidates;
    if (const char *env = std::getenv("QUILLET_CONTENT_DIR"); env && *env)
        candidates.emplace_back(env);
#ifdef QUILLET_BUILD_CONTENT_DIR
    candidates.emplace_back(QUILLET_BUILD_CONTENT_DIR);
#endif
    std::error_code ec;
    const auto exe = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (!ec)
        candidates.push_back(exe.parent_path().parent_path() / "content");
    for (const auto &dir : candidates) {
        if (std::filesystem::is_regular_file(dir / "index.json", ec))
            return dir;
    }
    return {};
}
