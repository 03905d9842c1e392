#pragma once

#include <httplib.h>
#include <nlohmann/json.hpp>

#include <QString>

#include <optional>
#include <string>

/** A bare HTTP client for the contract tests: POSTs JSON to the server and decodes the envelope. */
class ApiClient
{
public:
    explicit ApiClient(const QString &baseUrl)
        : m_http(baseUrl.chopped(1).toStdString())
    {
        m_http.set_connection_timeout(2);
        m_http.set_read_timeout(5);
    }

    httplib::Client &http() { return m_http; }

    /** The decoded envelope, or nothing when there was no answer or it was not JSON. */
    std::optional<nlohmann::json> call(const std::string &endpoint,
        const nlohmann::json &body = nlohmann::json::object(), const std::string &token = {},
        const std::string &prefix = "/api/public/api/")
    {
        httplib::Headers headers;
        if (!token.empty())
            headers.emplace("Authorization", "Bearer " + token);
        auto res = m_http.Post((prefix + endpoint).c_str(), headers, body.dump(), "application/json");
        lastStatus = res ? res->status : -1;
        if (!res)
            return std::nullopt;
        auto json = nlohmann::json::parse(res->body, nullptr, false);
        if (json.is_discarded())
            return std::nullopt;
        return json;
    }

    std::string signIn()
    {
        const auto answer = call("doLoginForGuest");
        return answer ? answer->at("data").value("token", "") : std::string();
    }

    int lastStatus = 0;

private:
    httplib::Client m_http;
};
