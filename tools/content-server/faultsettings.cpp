#include "faultsettings.h"

#include <nlohmann/json.hpp>

namespace {

template<typename T> void take(const nlohmann::json &changes, const char *key, T &target)
{
    const auto it = changes.find(key);
    if (it == changes.end())
        return;
    if constexpr (std::is_same_v<T, bool>) {
        if (it->is_boolean())
            target = it->get<bool>();
    } else if (it->is_number_integer()) {
        target = it->get<T>();
    }
}

} // namespace

void FaultSettings::apply(const nlohmann::json &changes)
{
    if (!changes.is_object())
        return;
    if (changes.value("reset", false))
        *this = FaultSettings {};
    if (const auto it = changes.find("latency_ms"); it != changes.end() && it->is_number_integer())
        latency = std::chrono::milliseconds(std::max(0, it->get<int>()));
    if (const auto it = changes.find("token_lifetime_s"); it != changes.end() && it->is_number_integer())
        tokenLifetime = std::chrono::seconds(std::max(0, it->get<int>()));
    take(changes, "refuse_connections", refuseConnections);
    take(changes, "http_500", http500);
    take(changes, "malformed_body", malformedBody);
    take(changes, "drop_mid_body", dropMidBody);
    take(changes, "hostile_names", hostileNames);
    if (const auto it = changes.find("hostile_target"); it != changes.end() && it->is_string())
        hostileTarget = it->get<std::string>();
    if (const auto it = changes.find("force_code"); it != changes.end()) {
        forcedEndpoint.clear();
        forcedCode = 0;
        forcedTimes = 1;
        forcedWithoutNewToken = false;
        if (it->is_object() && it->value("endpoint", nlohmann::json()).is_string()) {
            forcedEndpoint = (*it)["endpoint"].get<std::string>();
            take(*it, "code", forcedCode);
            take(*it, "times", forcedTimes);
            take(*it, "without_new_token", forcedWithoutNewToken);
        }
    }
}

nlohmann::json FaultSettings::toJson() const
{
    nlohmann::json forced = nullptr;
    if (!forcedEndpoint.empty())
        forced = { { "endpoint", forcedEndpoint }, { "code", forcedCode }, { "times", forcedTimes },
            { "without_new_token", forcedWithoutNewToken } };
    return { { "latency_ms", latency.count() }, { "refuse_connections", refuseConnections }, { "http_500", http500 },
        { "malformed_body", malformedBody }, { "drop_mid_body", dropMidBody }, { "force_code", forced },
        { "token_lifetime_s", tokenLifetime.count() }, { "hostile_names", hostileNames },
        { "hostile_target", hostileTarget } };
}
