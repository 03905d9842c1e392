// quillet-content-server: serves a content pack over HTTP until interrupted.
#include "contentserver.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

int usage(const char *message)
{
    if (message)
        std::fprintf(stderr, "quillet-content-server: %s\n", message);
    std::fprintf(stderr,
        "usage: quillet-content-server [--port N] [--content DIR] [--bind ADDRESS] [--token-lifetime SECONDS] "
        "[--quiet]\n");
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    int port = 0;
    int tokenLifetime = -1;
    std::string bind = "127.0.0.1";
    std::filesystem::path content = ContentServer::defaultContentDir();
    bool quiet = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        const bool hasValue = i + 1 < argc;
        if (arg == "--port" && hasValue)
            port = std::atoi(argv[++i]);
        else if (arg == "--content" && hasValue)
            content = argv[++i];
        else if (arg == "--bind" && hasValue)
            bind = argv[++i];
        else if (arg == "--token-lifetime" && hasValue)
            tokenLifetime = std::atoi(argv[++i]);
        else if (arg == "--quiet")
            quiet = true;
        else if (arg == "--help" || arg == "-h")
            return usage(nullptr);
        else
            return usage(("unknown argument " + arg).c_str());
    }
    if (content.empty())
        return usage("no content pack found; build the content-pack target or pass --content DIR");
    if (port < 0 || port > 65535)
        return usage("port out of range");

    // Worker threads inherit this mask, so the signals reach sigwait() below only.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);

    ContentServer server;
    server.setAccessLog(!quiet);
    if (tokenLifetime >= 0)
        server.setTokenLifetime(std::chrono::seconds(tokenLifetime));
    if (server.start(content, bind, port) == 0) {
        std::fprintf(stderr, "quillet-content-server: %s\n", server.errorString().c_str());
        return 1;
    }
    std::printf("listening on %s\n", server.baseUrl().c_str());
    std::fflush(stdout);

    int received = 0;
    sigwait(&signals, &received);
    server.stop();
    return 0;
}
