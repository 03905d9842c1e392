#pragma once

#include "contentcategorypager.h"

#include <optional>

/**
 * A sticker category ("Graphics" 47, "Shapes" 49, "Text Arts" 50, ...): the own-picture page, then the
 * category's catalogs. Opened for a selected sticker, it shows that sticker's catalog first.
 */
class StickerContentCategoryPagerVC : public ContentCategoryPager
{
    Q_OBJECT
public:
    explicit StickerContentCategoryPagerVC(QObject *parent = nullptr);

    /** The catalog of the selected sticker, when the pager was opened for one. */
    std::optional<qint64> selected_sticker_catalog_id;

    /** The title is the category's name. */
    void viewDidLoad() override;

protected:
    void catalogsShown() override;
};
