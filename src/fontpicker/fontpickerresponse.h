#pragma once

#include "fontpickercatalogsresponse.h"
#include "fontpickerdownloadresponse.h"
#include "loginresponse.h"

#include <QString>

#include <memory>
#include <optional>

/** The envelope of the font library's answers; `data` is read into all three members at once. */
struct FontpickerResponse
{
    std::optional<qint64> code;
    std::optional<QString> message;
    std::optional<QString> cause;
    std::shared_ptr<FontpickerCatalogsResponse> fontpickerCatalogsResponse;
    std::shared_ptr<LoginResponse> loginResponse;
    std::shared_ptr<FontpickerDownloadResponse> fontpickerDownloadResponse;

    template<class Map> void mapping(Map &map)
    {
        map("code", code);
        map("message", message);
        map("cause", cause);
        map("data", fontpickerCatalogsResponse);
        map("data", loginResponse);
        map("data", fontpickerDownloadResponse);
    }
};
