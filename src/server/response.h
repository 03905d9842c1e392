#pragma once

#include "catalogoptionsresponse.h"
#include "categoryimagesresponse.h"
#include "getsearchedjsonresponse.h"
#include "json.h"
#include "loginresponse.h"
#include "templatedataresponse.h"

#include <QString>

#include <memory>
#include <optional>

/**
 * The envelope of every answer of the main API. The one `data` object is read into all six members at
 * once, each taking the keys it knows; a caller reads the member of its endpoint.
 */
struct Response
{
    std::optional<qint64> code; // the code in the body decides, never the HTTP status
    std::optional<QString> message;
    std::optional<QString> cause;
    std::shared_ptr<LoginResponse> loginResponse;
    std::shared_ptr<TemplateDataResponse> templateDataResponse;
    std::shared_ptr<GetSearchedJsonResponse> getSearchedJsonResponse;
    std::shared_ptr<Json> jsonResponse;
    std::shared_ptr<CategoryImagesResponse> categoryImagesResponse;
    std::shared_ptr<CatalogOptionsResponse> catalogOptionsResponse;

    template<class Map> void mapping(Map &map)
    {
        map("code", code);
        map("message", message);
        map("cause", cause);
        map("data", loginResponse);
        map("data", templateDataResponse);
        map("data", getSearchedJsonResponse);
        map("data", jsonResponse);
        map("data", categoryImagesResponse);
        map("data", catalogOptionsResponse);
    }
};
