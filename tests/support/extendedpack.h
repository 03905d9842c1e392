#pragma once

#include "contentserver.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <nlohmann/json.hpp>

#include <filesystem>

/**
 * The generated sample pack with templates and assets of a test's own beside it: a temporary content
 * folder whose files link to the pack's, plus the added files, served by a real content server on a
 * loopback port. Add the templates and assets, then start.
 */
class ExtendedPack
{
public:
    ExtendedPack();

    /** Adds a template document; its `json_id` names it. */
    void addTemplate(const nlohmann::json &document);
    /** Adds an asset file at `relative` below the content base ("fonts/Odd #1.ttf"). */
    void addAsset(const std::string &relative, const QByteArray &bytes);
    /** Starts the server on the folder; false when it did not start. */
    bool start();

    [[nodiscard]] ContentServer &server() { return m_server; }
    [[nodiscard]] QString apiBase() const { return QString::fromStdString(m_server.apiBase()); }
    [[nodiscard]] QString contentBase() const { return QString::fromStdString(m_server.contentBase()); }

private:
    QTemporaryDir m_dir;
    std::filesystem::path m_root;
    ContentServer m_server;
};
