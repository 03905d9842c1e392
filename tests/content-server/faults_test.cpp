// Asset delivery (types, validators, ranges) and each fault switch, by library setter and by admin endpoint.
#include "apiclient.h"
#include "contentserverfixture.h"

#include <chrono>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;

class ServerFaultsTest : public ::testing::Test
{
protected:
    TestContentServer server;
    ApiClient client { server.baseUrl() };
    std::string token = client.signIn();
    const nlohmann::json catalogs = { { "sub_category_id", 51 } };

    int codeOf(const std::string &endpoint, const nlohmann::json &body = { { "sub_category_id", 51 } })
    {
        const auto answer = client.call(endpoint, body, token);
        return answer ? answer->value("code", 0) : -1;
    }
};

TEST_F(ServerFaultsTest, AssetsHaveTypesValidatorsAndRanges)
{
    auto res = client.http().Get("/content/video/story_0.mp4");
    ASSERT_TRUE(res);
    ASSERT_EQ(res->status, 200);
    EXPECT_EQ(res->get_header_value("Content-Type"), "video/mp4");
    const std::string etag = res->get_header_value("ETag");
    ASSERT_FALSE(etag.empty());
    ASSERT_FALSE(res->get_header_value("Last-Modified").empty());
    const std::string whole = res->body;

    auto again = client.http().Get("/content/video/story_0.mp4", { { "If-None-Match", etag } });
    EXPECT_EQ(again->status, 304);
    EXPECT_TRUE(again->body.empty());
    auto since = client.http().Get(
        "/content/video/story_0.mp4", { { "If-Modified-Since", res->get_header_value("Last-Modified") } });
    EXPECT_EQ(since->status, 304);
    EXPECT_EQ(client.http().Get("/content/video/story_0.mp4", { { "If-None-Match", "\"other\"" } })->status, 200);

    auto range = client.http().Get("/content/video/story_0.mp4", { httplib::make_range_header({ { 100, 199 } }) });
    ASSERT_TRUE(range);
    EXPECT_EQ(range->status, 206);
    EXPECT_EQ(range->body, whole.substr(100, 100));
    EXPECT_EQ(range->get_header_value("Content-Range"), "bytes 100-199/" + std::to_string(whole.size()));

    EXPECT_EQ(client.http().Get("/content/fonts/lobster.otf")->get_header_value("Content-Type"), "font/otf");
    EXPECT_EQ(client.http().Get("/content/audio/track_0.mp3")->get_header_value("Content-Type"), "audio/mpeg");
    EXPECT_EQ(client.http().Get("/content/resource/../index.json")->status, 404);
    EXPECT_EQ(client.http().Get("/content/templates/1001.json")->status, 404) << "only the asset folders are served";
    EXPECT_EQ(client.http().Get("/content/resource/none.png")->status, 404);
}

TEST_F(ServerFaultsTest, LatencyDelaysEveryAnswer)
{
    server.server().setLatency(std::chrono::milliseconds(300));
    const auto start = Clock::now();
    EXPECT_EQ(codeOf("getCatalogBySubCategoryId"), 200);
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(300));
}

TEST_F(ServerFaultsTest, Http500AndNonJsonBodies)
{
    server.server().setHttp500(true);
    EXPECT_FALSE(client.call("getCatalogBySubCategoryId", catalogs, token).has_value());
    EXPECT_EQ(client.lastStatus, 500);
    server.server().setHttp500(false);
    server.server().setMalformedBody(true);
    EXPECT_FALSE(client.call("getCatalogBySubCategoryId", catalogs, token).has_value());
    EXPECT_EQ(client.lastStatus, 200);
    server.server().setMalformedBody(false);
    EXPECT_EQ(codeOf("getCatalogBySubCategoryId"), 200);
}

TEST_F(ServerFaultsTest, ForcedCodeHitsOneEndpointForTheGivenNumberOfCalls)
{
    server.server().forceCode("getCatalogBySubCategoryId", 401, 2);
    const auto first = client.call("getCatalogBySubCategoryId", catalogs, token);
    ASSERT_EQ(first->value("code", 0), 401);
    const std::string replacement = first->at("data").value("new_token", "");
    EXPECT_FALSE(replacement.empty());
    EXPECT_EQ(codeOf("getImagesByCatalogId", { { "catalog_id", 301 } }), 400)
        << "the forced 401 withdrew the old token";
    token = replacement;
    EXPECT_EQ(codeOf("getImagesByCatalogId", { { "catalog_id", 301 } }), 200) << "other endpoints are not forced";
    const auto second = client.call("getCatalogBySubCategoryId", catalogs, token);
    ASSERT_EQ(second->value("code", 0), 401);
    token = second->at("data").value("new_token", "");
    EXPECT_EQ(codeOf("getCatalogBySubCategoryId"), 200) << "two forced answers, then the real one";
    EXPECT_EQ(server.server().faults().forcedEndpoint, "");

    server.server().forceCode("getJsonData", 401, -1, true);
    for (int i = 0; i < 3; ++i) {
        const auto answer = client.call("getJsonData", { { "json_id", 1001 } }, token);
        EXPECT_EQ(answer->value("code", 0), 401);
        EXPECT_FALSE(answer->at("data").contains("new_token"));
    }
    server.server().clearForcedCode();
    EXPECT_EQ(codeOf("getJsonData", { { "json_id", 1001 } }), 200);
}

TEST_F(ServerFaultsTest, DroppedConnectionCutsTheBodyShort)
{
    server.server().setDropMidBody(true);
    EXPECT_FALSE(client.call("getCatalogBySubCategoryId", catalogs, token).has_value());
    auto res = client.http().Get("/content/video/story_0.mp4");
    EXPECT_TRUE(!res || res->status != 200 || res->body.size() < 1000);
    server.server().setDropMidBody(false);
    EXPECT_EQ(codeOf("getCatalogBySubCategoryId"), 200);
}

TEST_F(ServerFaultsTest, RefusedConnectionsComeBackOnTheSamePort)
{
    const int port = server.server().port();
    server.server().setRefuseConnections(true);
    EXPECT_FALSE(client.call("getCatalogBySubCategoryId", catalogs, token).has_value());
    EXPECT_EQ(client.lastStatus, -1);
    server.server().setRefuseConnections(false);
    EXPECT_EQ(server.server().port(), port);
    EXPECT_EQ(codeOf("getCatalogBySubCategoryId"), 200);
}

TEST_F(ServerFaultsTest, AdminEndpointSwitchesFaultsOverHttp)
{
    auto res
        = client.http().Post("/__admin/faults", R"({"http_500": true, "token_lifetime_s": 0})", "application/json");
    ASSERT_TRUE(res);
    EXPECT_EQ(nlohmann::json::parse(res->body)["http_500"], true);
    EXPECT_TRUE(server.server().faults().http500);
    client.call("getCatalogBySubCategoryId", catalogs, token);
    EXPECT_EQ(client.lastStatus, 500);
    client.http().Post("/__admin/faults", R"({"http_500": false})", "application/json");
    EXPECT_EQ(codeOf("getCatalogBySubCategoryId"), 401) << "a lifetime of 0 expires every token at once";

    client.http().Post("/__admin/faults", R"({"reset": true, "refuse_connections_ms": 400})", "application/json");
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
    EXPECT_FALSE(client.call("doLoginForGuest").has_value());
    const auto deadline = Clock::now() + std::chrono::seconds(5);
    std::optional<nlohmann::json> back;
    while (!back && Clock::now() < deadline) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        back = client.call("doLoginForGuest");
    }
    EXPECT_TRUE(back.has_value()) << "the listener opens again after the given time";
    EXPECT_EQ(client.http().Post("/__admin/faults", "[1]", "application/json")->status, 400);
}

} // namespace
