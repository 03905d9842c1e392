#pragma once

#include "view.h"

#include <QImage>

/** A view that shows a picture, with UIImageView's content modes. */
class ImageView : public View
{
    Q_OBJECT
public:
    enum class ContentMode { ScaleToFill = 0, ScaleAspectFit = 1, ScaleAspectFill = 2, Center = 4 };

    explicit ImageView(const QRectF &frame = {}, QObject *parent = nullptr);

    [[nodiscard]] QImage image() const { return m_image; }
    void setImage(const QImage &image);
    [[nodiscard]] ContentMode contentMode() const { return m_contentMode; }
    void setContentMode(ContentMode mode);
    /** Where the picture lands inside the bounds under the content mode. */
    [[nodiscard]] QRectF imageRect() const;
    /** Draws the picture by the content mode, clipped to the bounds for the filling modes. */
    void paintContent(QPainter &painter) const override;

private:
    QImage m_image;
    ContentMode m_contentMode = ContentMode::ScaleToFill;
};
