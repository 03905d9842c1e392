#pragma once

#include "apicall.h"
#include "contentserver.h"

#include <QList>
#include <QTemporaryDir>
#include <QUrl>

/**
 * The content server on a loopback port with a small pack of known content: sub-category 47 has the
 * template catalogs 101 "Sale" (three cards) and 102 "Party" (one card), 51 has the image catalog 201,
 * and 99 has nothing. Templates 1 to 4 exist as documents.
 */
class CatalogServer
{
public:
    CatalogServer();
    ~CatalogServer();

    [[nodiscard]] ContentServer &server() { return m_server; }
    [[nodiscard]] QUrl apiBase() const;
    [[nodiscard]] bool isRunning() const { return m_server.isRunning(); }

private:
    QTemporaryDir m_pack;
    ContentServer m_server;
};

/** The outcomes a completion received, in order. */
struct CompletionLog
{
    struct Outcome
    {
        std::optional<QJsonObject> dictionary;
        std::optional<ApiError> error;
        bool usable = false;
    };

    QList<Outcome> outcomes;

    [[nodiscard]] ApiCompletion completion();
    /** Waits for the first outcome, then a little longer so that a second one would show. */
    [[nodiscard]] bool waitForOne();
    [[nodiscard]] const Outcome &only() const { return outcomes.first(); }
};
