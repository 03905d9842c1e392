#pragma once

#include "json.h"

#include <memory>

/**
 * A design with `layers` layers spread over the four kinds, with fractional geometry, colours and
 * picture names as an edited design has them; `marker` goes into `json_id` so that a reader can
 * tell versions apart.
 */
[[nodiscard]] std::shared_ptr<Json> makeSampleDocument(int layers, qint64 marker = 0);
