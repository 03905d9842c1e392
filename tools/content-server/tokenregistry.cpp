#include "tokenregistry.h"

#include <cstdio>

TokenRegistry::TokenRegistry()
    : m_random(std::random_device {}())
{ }

std::string TokenRegistry::issue()
{
    std::lock_guard lock(m_mutex);
    return issueLocked();
}

TokenRegistry::Status TokenRegistry::check(const std::string &token, std::chrono::seconds lifetime) const
{
    std::lock_guard lock(m_mutex);
    const auto it = m_issued.find(token);
    if (it == m_issued.end())
        return Status::Unknown;
    return Clock::now() - it->second >= lifetime ? Status::Expired : Status::Valid;
}

std::string TokenRegistry::replace(const std::string &old)
{
    std::lock_guard lock(m_mutex);
    m_issued.erase(old);
    return issueLocked();
}

std::string TokenRegistry::issueLocked()
{
    char text[33];
    std::snprintf(text, sizeof text, "%016llx%016llx", static_cast<unsigned long long>(m_random()),
        static_cast<unsigned long long>(m_random()));
    m_issued.emplace(text, Clock::now());
    return text;
}
