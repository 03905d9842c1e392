#pragma once

#include "catalogcontentpage.h"

/** One background-video catalog: a tapped video opens its preview, ShowBGVideoSampleVC. */
class BGVideoContentVC : public CatalogContentPage
{
    Q_OBJECT
public:
    explicit BGVideoContentVC(QObject *parent = nullptr);

    /** The cards are portrait stills of the videos. */
    [[nodiscard]] qreal cellAspect() const override { return 16.0 / 9.0; }

protected:
    void openItem(const std::shared_ptr<Json> &item) override;
};
