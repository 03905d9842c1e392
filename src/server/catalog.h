#pragma once

#include "json.h"
#include "recordlist.h"

#include <QString>

#include <optional>

/** A catalog with its cards, as the picker screens show it. */
struct Catalog
{
    std::optional<qint64> catalog_id;
    std::optional<QString> name;
    std::optional<QString> original_img;
    std::optional<QString> compressed_img;
    std::optional<QString> thumbnail_img;
    std::optional<bool> is_free;
    std::optional<bool> is_featured;
    std::optional<bool> is_offline;
    std::optional<bool> is_sample;
    RecordList<Json> json_list;
    qint64 current_page = 0; // kept by the client, not the server
    std::optional<QString> create_time;
    std::optional<QString> update_time;
    std::optional<QString> sync_time;
    qint64 gradient_id = 0;

    template<class Map> void mapping(Map &map)
    {
        map("catalog_id", catalog_id);
        map("name", name);
        map("original_img", original_img);
        map("compressed_img", compressed_img);
        map("thumbnail_img", thumbnail_img);
        map("is_free", is_free);
        map("is_featured", is_featured);
        map("is_offline", is_offline);
        map("is_sample", is_sample);
        map("json_list", json_list);
        map("current_page", current_page);
        map("create_time", create_time);
        map("updated_at", update_time);
        map("sync_time", sync_time);
        map("gradient_id", gradient_id);
    }
};
