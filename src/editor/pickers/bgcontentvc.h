#pragma once

#include "catalogcontentpage.h"

/** One background catalog: a tapped picture becomes the editor's background, with its address. */
class BGContentVC : public CatalogContentPage
{
    Q_OBJECT
public:
    explicit BGContentVC(QObject *parent = nullptr);

    /** Backgrounds are portrait pictures. */
    [[nodiscard]] qreal cellAspect() const override { return 16.0 / 9.0; }

protected:
    void handBack(ContentCategoryPager &pager, const QImage &picture, const Json &item) override;
};
