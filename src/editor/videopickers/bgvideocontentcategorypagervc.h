#pragma once

#include "contentcategorypager.h"
#include "json.h"

#include <memory>

/**
 * The background videos (sub-category 52): "Pick your own" (AddNewBGVideoVC), then one BGVideoContentVC
 * per catalog. Opened by a video editor for its movie (`vcTag` 1, or 2 from the landscape one), or by the
 * custom-size screen for a new video design (`isCreateOwn` with its blank `createOwnJson`).
 */
class BGVideoContentCategoryPagerVC : public ContentCategoryPager
{
    Q_OBJECT
    Q_PROPERTY(int vcTag MEMBER vcTag)
    Q_PROPERTY(bool isCreateOwn MEMBER isCreateOwn)
    Q_PROPERTY(std::shared_ptr<Json> createOwnJson MEMBER createOwnJson)
public:
    explicit BGVideoContentCategoryPagerVC(QObject *parent = nullptr);

    bool isCreateOwn = false;
    /** The blank design of the chosen size, for a new video design. */
    std::shared_ptr<Json> createOwnJson;
};
