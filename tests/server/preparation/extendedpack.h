#pragma once

#include "contentserver.h"

#include <QString>
#include <QTemporaryDir>

#include <nlohmann/json.hpp>

#include <filesystem>

/**
 * The generated sample pack with templates of a test's own beside it: a temporary content folder whose
 * files link to the pack's, plus the added template documents, served by a real content server on a
 * loopback port. Add the templates, then start.
 */
class ExtendedPack
{
public:
    ExtendedPack();

    /** Adds a template document; its `json_id` names it. */
    void addTemplate(const nlohmann::json &document);
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
