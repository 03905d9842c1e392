// Asset delivery (types, validators, ranges) and each fault switch, by library setter and by admin endpoint.
#include "apiclient.h"
#include "contentserverfixture.h"

#include <algorithm>
#include <chrono>
#include <functional>
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

TEST_F(ServerFaultsTest, HostileNamesFillDocumentsCatalogsAndPicturesAndEveryNameGetsAFile)
{
    const std::string target = "/srv/elsewhere";
    server.server().setHostileNames(true, target);
    std::vector<std::string> names;
    auto collect = [&](const nlohmann::json &value, auto &&self) -> void {
        if (value.is_string())
            names.push_back(value.get<std::string>());
        else if (value.is_structured())
            for (const auto &child : value)
                self(child, self);
    };
    for (int jsonId = 1001; jsonId <= 1004; ++jsonId) {
        const auto document = client.call("getJsonData", { { "json_id", jsonId } }, token);
        ASSERT_EQ(document->value("code", 0), 200);
        const auto &data = document->at("data");
        for (const char *key : { "frame_json", "sticker_json", "image_sticker_json", "text_json", "sample_image" })
            collect(data.value(key, nlohmann::json()), collect);
    }
    auto holds = [&](const std::function<bool(const std::string &)> &test) {
        return std::any_of(names.begin(), names.end(), test);
    };
    EXPECT_TRUE(holds([](const std::string &n) { return n.starts_with("..%2F..%2F"); }));
    EXPECT_TRUE(holds([](const std::string &n) { return n.starts_with("../../"); }));
    EXPECT_TRUE(holds([&](const std::string &n) { return n.starts_with(target + "/escape"); }));
    EXPECT_TRUE(holds([&](const std::string &n) { return n.starts_with("file://" + target + "/escape"); }));
    EXPECT_TRUE(holds([](const std::string &n) { return n.starts_with("..\\..\\"); }));
    EXPECT_TRUE(holds([](const std::string &n) { return n.find('\0') != std::string::npos; }));
    EXPECT_TRUE(holds([](const std::string &n) { return n.size() > 255; }));
    const auto first = client.call("getJsonData", { { "json_id", 1001 } }, token);
    EXPECT_NE(first->at("data").at("text_json")[0].value("fontPath", ""), "fonts/lobster.otf")
        << "font paths are hostile too";

    const auto fonts = client.call("getAllFontsByCatalogId", { { "catalog_id", 403 } }, token);
    const auto &list = fonts->at("data").at("downloadFonts");
    ASSERT_GE(list.size(), 3U);
    EXPECT_TRUE(list[0]
                    .value("font_url", "")
                    .starts_with(server.contentBase().toStdString() + "fonts/..%2F..%2F..%2F..%2Fescape0."));
    EXPECT_TRUE(list[2].value("font_url", "").starts_with(target + "/escape2."));
    const auto images = client.call("getImagesByCatalogId", { { "catalog_id", 301 } }, token);
    EXPECT_EQ(
        images->at("data").at("image_list")[0].value("original_img", "").find(server.contentBase().toStdString()), 0U);

    // Whatever a name below an asset folder says, a file of that folder's kind answers.
    auto font = client.http().Get("/content/fonts/..%2F..%2F..%2F..%2Fescape0.ttf");
    ASSERT_TRUE(font);
    EXPECT_EQ(font->status, 200);
    EXPECT_TRUE(font->get_header_value("Content-Type").starts_with("font/"));
    auto picture = client.http().Get("/content/resource/" + std::string(300, 'a') + ".png");
    EXPECT_EQ(picture->status, 200);
    EXPECT_TRUE(picture->get_header_value("Content-Type").starts_with("image/"));

    server.server().setHostileNames(false);
    EXPECT_EQ(client.http().Get("/content/fonts/..%2F..%2F..%2F..%2Fescape0.ttf")->status, 404);
    const auto plain = client.call("getAllFontsByCatalogId", { { "catalog_id", 403 } }, token);
    EXPECT_EQ(plain->at("data").at("downloadFonts")[0].value("font_url", "").find("escape"), std::string::npos);
    client.http().Post("/__admin/faults", R"({"hostile_names": true, "hostile_target": "/x"})", "application/json");
    EXPECT_TRUE(server.server().faults().hostileNames);
    EXPECT_EQ(server.server().faults().hostileTarget, "/x");
}

TEST_F(ServerFaultsTest, AnswersItsIdentityAndKeepsItsPortToItself)
{
    auto identity = client.http().Get(ContentServer::identityPath);
    ASSERT_TRUE(identity);
    EXPECT_EQ(nlohmann::json::parse(identity->body), nlohmann::json::parse(ContentServer::identity()));
    ContentServer second;
    second.setAccessLog(false);
    EXPECT_EQ(second.start(ContentServer::defaultContentDir(), "127.0.0.1", server.server().port()), 0)
        << "a second listener on a port in use is refused";
}

} // namespace
