#pragma once

#include <chrono>
#include <mutex>
#include <random>
#include <string>
#include <unordered_map>

/** Guest tokens the server has issued, with their age. Thread-safe. */
class TokenRegistry
{
public:
    enum class Status { Valid, Unknown, Expired };

    TokenRegistry();

    /** A new token, valid from now. */
    std::string issue();
    [[nodiscard]] Status check(const std::string &token, std::chrono::seconds lifetime) const;
    /** Withdraws `old` and issues its replacement, as a 401 answer hands it out. */
    std::string replace(const std::string &old);

private:
    using Clock = std::chrono::steady_clock;
    std::string issueLocked();

    mutable std::mutex m_mutex;
    std::unordered_map<std::string, Clock::time_point> m_issued;
    std::mt19937_64 m_random;
};
