#pragma once

#include <chrono>
#include <string>

#include <nlohmann/json.hpp>

class ContentPack;
class TokenRegistry;

/**
 * The answers of the content API and of the promotion API, as envelopes (`code`, `message`, `cause`, `data`).
 * Knows nothing of HTTP: the server hands it the endpoint name, the decoded body and the bearer token.
 */
class ContentApi
{
public:
    ContentApi(const ContentPack &pack, TokenRegistry &tokens);

    /** True for an endpoint of the main API (which also carries the libraries' endpoints). */
    [[nodiscard]] static bool knows(const std::string &endpoint);
    [[nodiscard]] static bool knowsPromotion(const std::string &endpoint);

    /**
     * One call of the main API. `base` is the content base (ends in "/") that replaces "{base}" in addresses
     * and becomes `prefix_url`.
     */
    [[nodiscard]] nlohmann::json answer(const std::string &endpoint, const nlohmann::json &request,
        const std::string &bearer, const std::string &base, std::chrono::seconds tokenLifetime) const;
    /** One call of the promotion API, which takes no sign-in. */
    [[nodiscard]] nlohmann::json answerPromotion(
        const std::string &endpoint, const nlohmann::json &request, const std::string &base) const;
    /** The envelope of a code forced by a test; a 401 carries a replacement token unless told not to. */
    [[nodiscard]] nlohmann::json forced(int code, const std::string &bearer, bool withNewToken) const;

    [[nodiscard]] static nlohmann::json envelope(int code, const std::string &message, nlohmann::json data = {});

private:
    nlohmann::json templateWithCatalogs(const nlohmann::json &request) const;
    nlohmann::json searchCards(const nlohmann::json &request) const;
    nlohmann::json catalogsOfSubCategory(const nlohmann::json &request) const;
    nlohmann::json imagesOfCatalog(const nlohmann::json &request) const;
    nlohmann::json templateDocument(const nlohmann::json &request, const std::string &base) const;
    nlohmann::json fontCatalogs(const nlohmann::json &request) const;
    nlohmann::json fontsOfCatalog(const nlohmann::json &request) const;
    nlohmann::json audioCatalogs(const nlohmann::json &request) const;
    nlohmann::json audioOfCatalog(const nlohmann::json &request) const;
    nlohmann::json contentOfCatalog(const nlohmann::json &request) const;
    nlohmann::json stockVideos(const nlohmann::json &request) const;
    nlohmann::json promotionLinks(const nlohmann::json &request) const;

    const ContentPack &m_pack;
    TokenRegistry &m_tokens;
};
