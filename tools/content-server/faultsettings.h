#pragma once

#include <chrono>
#include <string>

#include <nlohmann/json_fwd.hpp>

/** Misbehaviour that tests switch on to see how a client copes with a bad server; all off by default. */
struct FaultSettings
{
    /** Added before every answer, assets included. */
    std::chrono::milliseconds latency { 0 };
    /** The listener is closed: connections are refused until this is switched off. */
    bool refuseConnections = false;
    /** API calls answer HTTP 500. */
    bool http500 = false;
    /** API calls answer HTTP 200 with a body that is not JSON. */
    bool malformedBody = false;
    /** Every body (API and assets) is cut off halfway and the connection closed. */
    bool dropMidBody = false;
    /** When not empty, this endpoint answers `forcedCode` for the next `forcedTimes` calls (-1: until cleared). */
    std::string forcedEndpoint;
    int forcedCode = 0;
    int forcedTimes = 1;
    /** A forced 401 normally carries a fresh `new_token`; this leaves it out. */
    bool forcedWithoutNewToken = false;
    /** How long a guest token is accepted before a call gets 401 with its replacement. */
    std::chrono::seconds tokenLifetime { std::chrono::hours(24) };
    /**
     * Template documents, font catalogs and picture lists carry hostile names (see HostileNames), and every
     * asset address below a folder answers with a file of that folder's kind, whatever its name.
     */
    bool hostileNames = false;
    /** The folder outside the client's that absolute hostile names point into. */
    std::string hostileTarget = "/tmp";

    /**
     * Applies the keys present in an admin request: latency_ms, refuse_connections, http_500, malformed_body,
     * drop_mid_body, force_code {endpoint, code, times, without_new_token} (null clears it), token_lifetime_s,
     * hostile_names, hostile_target, reset (back to defaults first). Unknown keys and wrong types are ignored.
     */
    void apply(const nlohmann::json &changes);
    [[nodiscard]] nlohmann::json toJson() const;
};
