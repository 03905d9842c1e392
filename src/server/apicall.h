#pragma once

#include "apierror.h"

#include <QJsonObject>
#include <QString>

#include <nlohmann/json.hpp>

#include <functional>
#include <optional>

/**
 * The completion of every call: the endpoint's record as JSON (fresh or a cached copy) or nothing,
 * the transport error or nothing, and whether the dictionary is usable. It runs on the GUI thread,
 * exactly once per call however many repeats the server asks for.
 */
using ApiCompletion = std::function<void(
    const std::optional<QJsonObject> &dictionary, const std::optional<ApiError> &error, bool usable)>;

/** One call of one endpoint, as the connection needs it: what goes out and how the answer and the cache are read. */
struct ApiCall
{
    QString endpoint; ///< appended to the server address
    nlohmann::ordered_json body; ///< the request record as JSON, keys in mapped order
    QString requestLog; ///< printed before the body; empty: the request is not logged
    QString responseLog; ///< printed before the raw answer; empty: the answer is not logged
    /** The endpoint's record read from the envelope's `data` and written back to JSON; nothing when `data` is absent.
     */
    std::function<std::optional<QJsonObject>(const nlohmann::ordered_json &envelope)> member;
    /** Writes the cache from a code 200 answer's record; empty for an endpoint that is never cached. */
    std::function<void(const QJsonObject &record)> store;
    /** The cached entry that stands in for a failed call; empty for an endpoint that is never cached. */
    std::function<std::optional<QJsonObject>()> cached;
    /** Set for search: code 427 then completes as 200 does, after handing over the envelope's `message`. */
    std::function<void(const std::optional<QString> &message)> relatedResults;
};
