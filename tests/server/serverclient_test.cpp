#include "applog.h"
#include "catalogserver.h"
#include "mapper.h"
#include "reachability.h"
#include "serverclient.h"
#include "testhome.h"
#include "userdefaults.h"

#include <QFile>
#include <QJsonArray>
#include <QNetworkAccessManager>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class ServerClientTest : public ::testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(content.isRunning()); }

    [[nodiscard]] static std::optional<QString> token() { return UserDefaults::standard().string(DefaultsKey::token); }
    [[nodiscard]] QString key(const QString &endpoint, const QString &suffix) const
    {
        return client.endpointUrl(endpoint) + suffix;
    }
    [[nodiscard]] static bool cached(const QString &key)
    {
        return UserDefaults::standard().dictionary(key).has_value();
    }

    /** Signs in once and returns the token. */
    QString signIn()
    {
        CompletionLog log;
        client.doLoginForGuest(nullptr, log.completion());
        EXPECT_TRUE(log.waitForOne());
        return token().value_or(QString());
    }

    TestHome home;
    CatalogServer content;
    QNetworkAccessManager network;
    ServerClient client { &network, content.apiBase() };
};

QStringList names(const QJsonObject &dictionary, const char *list, const char *field)
{
    QStringList out;
    for (const QJsonValue &entry : dictionary.value(QLatin1String(list)).toArray())
        out.append(entry[QLatin1String(field)].toVariant().toString());
    return out;
}

} // namespace

TEST_F(ServerClientTest, FirstCallSignsInAndTheTokenIsKept)
{
    ASSERT_FALSE(token());
    CompletionLog log;
    client.getTemplateWithCatalogs(47, 0, 1, 20, nullptr, log.completion());
    ASSERT_TRUE(log.waitForOne());
    const auto &outcome = log.only();
    ASSERT_TRUE(outcome.usable);
    EXPECT_FALSE(outcome.error);
    EXPECT_EQ(names(*outcome.dictionary, "category_list", "name"), QStringList({ "Sale", "Party" }));
    EXPECT_EQ(names(*outcome.dictionary, "sample_cards", "json_id"), QStringList({ "1", "2", "3" }));
    // The record as it maps back: unknown keys are gone, the document's own defaults are written.
    const QJsonObject first = outcome.dictionary->value(QLatin1String("sample_cards"))[0].toObject();
    EXPECT_FALSE(first.contains(QLatin1String("server_only_key")));
    EXPECT_EQ(first.value(QLatin1String("is_editsaved")), true);
    const std::optional<QString> issued = token();
    ASSERT_TRUE(issued && !issued->isEmpty());

    CompletionLog again;
    client.getCatalogBySubCategoryId(51, nullptr, again.completion());
    ASSERT_TRUE(again.waitForOne());
    EXPECT_TRUE(again.only().usable);
    EXPECT_EQ(token(), issued);
}

TEST_F(ServerClientTest, RejectedTokenSignsInAgainAndRepeatsOnce)
{
    UserDefaults::standard().setString(DefaultsKey::token, QStringLiteral("unknown-to-the-server"));
    CompletionLog log;
    client.getImagesByCatalogId(201, nullptr, log.completion());
    ASSERT_TRUE(log.waitForOne());
    EXPECT_TRUE(log.only().usable);
    EXPECT_EQ(log.only().dictionary->value(QLatin1String("category_name")), QStringLiteral("Marble"));
    EXPECT_NE(token(), QStringLiteral("unknown-to-the-server"));

    // A 400 signs in whatever the answer holds, as often as the server says so.
    const QString before = *token();
    content.server().forceCode("getImagesByCatalogId", 400, 3);
    CompletionLog repeated;
    client.getImagesByCatalogId(201, nullptr, repeated.completion());
    ASSERT_TRUE(repeated.waitForOne());
    EXPECT_TRUE(repeated.only().usable);
    EXPECT_NE(token(), before);
}

TEST_F(ServerClientTest, ExpiredTokenIsReplacedFromTheAnswerWithoutSignIn)
{
    const QString first = signIn();
    content.server().forceCode("getCatalogBySubCategoryId", 401, 4);
    CompletionLog log;
    client.getCatalogBySubCategoryId(51, nullptr, log.completion());
    ASSERT_TRUE(log.waitForOne());
    EXPECT_TRUE(log.only().usable);
    EXPECT_EQ(names(*log.only().dictionary, "category_list", "catalog_id"), QStringList({ "201" }));
    EXPECT_NE(token(), first);
}

TEST_F(ServerClientTest, UnhandledCodesFallToTheCache)
{
    signIn();
    CompletionLog fresh;
    client.getImagesByCatalogId(201, nullptr, fresh.completion());
    ASSERT_TRUE(fresh.waitForOne());
    const QString kept = *token();

    // A 401 without a replacement neither signs in nor changes the token.
    content.server().forceCode("getImagesByCatalogId", 401, 1, true);
    CompletionLog expired;
    client.getImagesByCatalogId(201, nullptr, expired.completion());
    ASSERT_TRUE(expired.waitForOne());
    EXPECT_TRUE(expired.only().usable);
    EXPECT_FALSE(expired.only().error);
    EXPECT_EQ(expired.only().dictionary, fresh.only().dictionary);
    EXPECT_EQ(token(), kept);

    content.server().forceCode("getImagesByCatalogId", 401, 1, true);
    CompletionLog uncached;
    client.getImagesByCatalogId(202, nullptr, uncached.completion());
    ASSERT_TRUE(uncached.waitForOne());
    EXPECT_FALSE(uncached.only().usable);
    EXPECT_FALSE(uncached.only().dictionary);
    EXPECT_FALSE(uncached.only().error);

    // Any other code, here the server's own 404 for an unknown template.
    CompletionLog missing;
    client.getJsonData(77, nullptr, missing.completion());
    ASSERT_TRUE(missing.waitForOne());
    EXPECT_FALSE(missing.only().usable);
    EXPECT_FALSE(missing.only().error);
}

TEST_F(ServerClientTest, RelatedSearchResultsCountAsFoundAndKeepTheMessage)
{
    ServerClient::setSearchMessage(QStringLiteral("Results"));
    CompletionLog exact;
    client.searchCardsBySubCategoryId(47, QStringLiteral("sale"), 1, 20, nullptr, exact.completion());
    ASSERT_TRUE(exact.waitForOne());
    EXPECT_EQ(names(*exact.only().dictionary, "result", "json_id"), QStringList({ "1", "2", "3" }));
    EXPECT_TRUE(exact.only().dictionary->contains(QLatin1String("last_sync_time")));
    EXPECT_EQ(ServerClient::searchMessage(), QStringLiteral("Results"));

    CompletionLog related;
    client.searchCardsBySubCategoryId(47, QStringLiteral("summ"), 1, 20, nullptr, related.completion());
    ASSERT_TRUE(related.waitForOne());
    EXPECT_TRUE(related.only().usable);
    EXPECT_EQ(names(*related.only().dictionary, "result", "json_id"), QStringList({ "1" }));
    EXPECT_TRUE(ServerClient::searchMessage().contains(QLatin1String("related templates")));

    // Search answers are never cached: with the server gone there is only the error.
    content.server().setRefuseConnections(true);
    CompletionLog down;
    client.searchCardsBySubCategoryId(47, QStringLiteral("sale"), 1, 20, nullptr, down.completion());
    ASSERT_TRUE(down.waitForOne());
    EXPECT_FALSE(down.only().usable);
    EXPECT_TRUE(down.only().error);
}

TEST_F(ServerClientTest, SignInAnswered427RunsASearchButNothingElse)
{
    content.server().forceCode("doLoginForGuest", 427);
    CompletionLog catalogs;
    client.getCatalogBySubCategoryId(51, nullptr, catalogs.completion());
    ASSERT_TRUE(catalogs.waitForOne());
    EXPECT_FALSE(catalogs.only().usable);
    EXPECT_FALSE(catalogs.only().error);
    EXPECT_FALSE(token());

    // The forced sign-in carries no token: it is stored as absent, and the search signs in once more.
    content.server().forceCode("doLoginForGuest", 427);
    CompletionLog search;
    client.searchCardsBySubCategoryId(47, QStringLiteral("party"), 1, 20, nullptr, search.completion());
    ASSERT_TRUE(search.waitForOne());
    EXPECT_TRUE(search.only().usable);
    EXPECT_EQ(names(*search.only().dictionary, "result", "json_id"), QStringList({ "4" }));
    EXPECT_TRUE(token());
}

TEST_F(ServerClientTest, UnreachableServerGivesTheCacheOrTheError)
{
    CompletionLog fresh;
    client.getCatalogBySubCategoryId(51, nullptr, fresh.completion());
    ASSERT_TRUE(fresh.waitForOne());

    content.server().setRefuseConnections(true);
    CompletionLog cachedAnswer;
    client.getCatalogBySubCategoryId(51, nullptr, cachedAnswer.completion());
    ASSERT_TRUE(cachedAnswer.waitForOne());
    EXPECT_TRUE(cachedAnswer.only().usable);
    EXPECT_FALSE(cachedAnswer.only().error);
    EXPECT_EQ(cachedAnswer.only().dictionary, fresh.only().dictionary);

    CompletionLog nothing;
    client.getCatalogBySubCategoryId(52, nullptr, nothing.completion());
    ASSERT_TRUE(nothing.waitForOne());
    EXPECT_FALSE(nothing.only().usable);
    EXPECT_FALSE(nothing.only().dictionary);
    ASSERT_TRUE(nothing.only().error);
    EXPECT_FALSE(nothing.only().error->localizedDescription.isEmpty());

    // A sign-in that cannot reach the server ends the same way.
    UserDefaults::standard().remove(DefaultsKey::token);
    CompletionLog signInDown;
    client.getCatalogBySubCategoryId(51, nullptr, signInDown.completion());
    ASSERT_TRUE(signInDown.waitForOne());
    EXPECT_TRUE(signInDown.only().usable);
    EXPECT_EQ(signInDown.only().dictionary, fresh.only().dictionary);
}

TEST_F(ServerClientTest, AnswerThatIsNotJsonIsATransportFailure)
{
    CompletionLog fresh;
    client.getJsonData(2, nullptr, fresh.completion());
    ASSERT_TRUE(fresh.waitForOne());
    ASSERT_TRUE(fresh.only().usable);
    EXPECT_EQ(fresh.only().dictionary->value(QLatin1String("json_id")), 2);

    content.server().setMalformedBody(true);
    CompletionLog malformed;
    client.getJsonData(2, nullptr, malformed.completion());
    ASSERT_TRUE(malformed.waitForOne());
    EXPECT_TRUE(malformed.only().usable);
    EXPECT_EQ(malformed.only().dictionary, fresh.only().dictionary);

    CompletionLog uncached;
    client.getJsonData(3, nullptr, uncached.completion());
    ASSERT_TRUE(uncached.waitForOne());
    EXPECT_FALSE(uncached.only().usable);
    ASSERT_TRUE(uncached.only().error);
    EXPECT_TRUE(uncached.only().error->localizedDescription.contains(QLatin1String("correct format")));

    // An HTTP 500 with a text body: the status itself decides nothing, the body does.
    content.server().setMalformedBody(false);
    content.server().setHttp500(true);
    CompletionLog failing;
    client.getJsonData(3, nullptr, failing.completion());
    ASSERT_TRUE(failing.waitForOne());
    EXPECT_FALSE(failing.only().usable);
    EXPECT_TRUE(failing.only().error);
}

TEST_F(ServerClientTest, FirstPageIsCachedUnderTheSubCategoryAndItsFirstCatalog)
{
    const QString endpoint = QStringLiteral("getTemplateWithCatalogs");
    CompletionLog first;
    client.getTemplateWithCatalogs(47, 0, 1, 2, nullptr, first.completion());
    ASSERT_TRUE(first.waitForOne());
    EXPECT_EQ(UserDefaults::standard().dictionary(key(endpoint, QStringLiteral("47"))), first.only().dictionary);
    EXPECT_EQ(client.cachedTemplateWithCatalogs(47, 101, 1), first.only().dictionary);
    EXPECT_FALSE(cached(key(endpoint, QStringLiteral("47_0_1"))));

    CompletionLog second;
    client.getTemplateWithCatalogs(47, 101, 2, 2, nullptr, second.completion());
    ASSERT_TRUE(second.waitForOne());
    EXPECT_EQ(names(*second.only().dictionary, "sample_cards", "json_id"), QStringList({ "3" }));
    EXPECT_TRUE(cached(key(endpoint, QStringLiteral("47_101_2"))));

    // A sub-category without catalogs keeps its own entry only.
    CompletionLog empty;
    client.getTemplateWithCatalogs(99, 0, 1, 20, nullptr, empty.completion());
    ASSERT_TRUE(empty.waitForOne());
    EXPECT_TRUE(empty.only().usable);
    EXPECT_TRUE(cached(key(endpoint, QStringLiteral("99"))));
    EXPECT_FALSE(cached(key(endpoint, QStringLiteral("99_0_1"))));

    // Failing, a catalog_id 0 call looks under the key that nothing writes; a catalog's page finds its entry.
    content.server().setRefuseConnections(true);
    CompletionLog subCategory;
    client.getTemplateWithCatalogs(47, 0, 1, 2, nullptr, subCategory.completion());
    ASSERT_TRUE(subCategory.waitForOne());
    EXPECT_FALSE(subCategory.only().usable);
    EXPECT_TRUE(subCategory.only().error);
    CompletionLog page;
    client.getTemplateWithCatalogs(47, 101, 2, 2, nullptr, page.completion());
    ASSERT_TRUE(page.waitForOne());
    EXPECT_EQ(page.only().dictionary, second.only().dictionary);

    // The key holds the whole address: another server address reads none of it.
    ServerClient elsewhere(&network, ServerClient::apiBase(QUrl(QStringLiteral("http://localhost:1/"))));
    EXPECT_FALSE(elsewhere.cachedTemplateWithCatalogs(47));
    EXPECT_EQ(elsewhere.endpointUrl(endpoint), QStringLiteral("http://localhost:1/api/public/api/") + endpoint);
}

TEST_F(ServerClientTest, CompletionOfAGoneContextIsDropped)
{
    content.server().setLatency(std::chrono::milliseconds(200));
    CompletionLog log;
    auto context = std::make_unique<QObject>();
    client.getImagesByCatalogId(201, context.get(), log.completion());
    context.reset();
    QTest::qWait(1500);
    EXPECT_TRUE(log.outcomes.isEmpty());
    // The call itself went through: the cache holds its answer.
    EXPECT_TRUE(client.cachedImagesByCatalogId(201));
}

TEST_F(ServerClientTest, GuestSignInStoresTheTokenOnlyOnSuccess)
{
    content.server().forceCode("doLoginForGuest", 503);
    CompletionLog refused;
    client.doLoginForGuest(nullptr, refused.completion());
    ASSERT_TRUE(refused.waitForOne());
    EXPECT_FALSE(refused.only().usable);
    EXPECT_FALSE(token());

    CompletionLog log;
    client.doLoginForGuest(nullptr, log.completion());
    ASSERT_TRUE(log.waitForOne());
    EXPECT_TRUE(log.only().usable);
    EXPECT_EQ(log.only().dictionary->value(QLatin1String("token")).toString(), token());
}

TEST_F(ServerClientTest, LibraryConnectionsKeepTheirOwnToken)
{
    ApiConnection fonts(&network, content.apiBase(), DefaultsKey::fontpickerToken);
    ApiCall call;
    call.endpoint = QStringLiteral("getCatalogBySubCategoryId");
    call.body = { { "sub_category_id", 51 } };
    call.member = [](const nlohmann::ordered_json &envelope) {
        return std::optional(Mapper::toQJsonObject(envelope.value("data", nlohmann::ordered_json::object())));
    };
    CompletionLog log;
    fonts.send(call, nullptr, log.completion());
    ASSERT_TRUE(log.waitForOne());
    EXPECT_TRUE(log.only().usable);
    EXPECT_TRUE(UserDefaults::standard().string(DefaultsKey::fontpickerToken));
    EXPECT_FALSE(token());

    // A ready header set stands in for a missing token, so that no sign-in comes first; a stored token,
    // even an empty one, wins over it.
    const ApiConnection::Headers fallback { { QStringLiteral("Authorization"), QStringLiteral("Bearer given") } };
    ApiConnection shapes(&network, content.apiBase(), DefaultsKey::shapecropToken, fallback);
    EXPECT_EQ(shapes.authorizationHeaders(), fallback);
    UserDefaults::standard().setString(DefaultsKey::shapecropToken, QString());
    EXPECT_EQ(shapes.authorizationHeaders(),
        (ApiConnection::Headers { { QStringLiteral("Authorization"), QStringLiteral("Bearer ") } }));
    ApiConnection stock(&network, content.apiBase(), DefaultsKey::stockVideoToken);
    EXPECT_TRUE(stock.authorizationHeaders().isEmpty());
}

TEST_F(ServerClientTest, CallsAreLoggedWithTheirFixedTexts)
{
    std::FILE *capture = std::tmpfile();
    AppLog::setOutput(capture);
    CompletionLog log;
    client.getTemplateWithCatalogs(47, 102, 1, 20, nullptr, log.completion());
    const bool done = log.waitForOne();
    EXPECT_TRUE(client.cachedTemplateWithCatalogs(47, 102, 1));
    AppLog::setOutput(stdout);
    ASSERT_TRUE(done);
    std::rewind(capture);
    QFile file;
    ASSERT_TRUE(file.open(capture, QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    std::fclose(capture);
    ASSERT_EQ(lines.size(), 4) << lines.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(
        lines[0].startsWith(client.endpointUrl(QStringLiteral("doLoginForGuest")) + QStringLiteral(" response: {")));
    EXPECT_EQ(lines[1],
        QStringLiteral(
            "getTemplateWithCatalogs request: "
            R"({"sub_category_id":47,"catalog_id":102,"is_get_data_for_1st_catalog":0,"page":1,"item_count":20})"));
    EXPECT_TRUE(lines[2].startsWith(QLatin1String("getTemplatesBySubCategoryTags reponse: {")));
    EXPECT_TRUE(lines[2].contains(QLatin1String("\"code\":200")));
    EXPECT_TRUE(lines[3].startsWith(QLatin1String("getTemplateWithCatalogs cache : {")));
}

TEST(Reachability, ForcedStateWinsAndLoopbackIsAlwaysReachable)
{
    EXPECT_NE(Reachability(QStringLiteral("127.0.0.1")).connection(), Reachability::Connection::Unavailable);
    EXPECT_NE(Reachability(QStringLiteral("localhost")).connection(), Reachability::Connection::Unavailable);
    Reachability::setForcedConnection(Reachability::Connection::Unavailable);
    EXPECT_EQ(Reachability(QStringLiteral("127.0.0.1")).connection(), Reachability::Connection::Unavailable);
    EXPECT_EQ(Reachability().connection(), Reachability::Connection::Unavailable);
    Reachability::setForcedConnection(std::nullopt);
    EXPECT_NE(Reachability(QStringLiteral("::1")).connection(), Reachability::Connection::Unavailable);
}
