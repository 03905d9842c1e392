#include "layerflash.h"

#include "hexcolor.h"
#include "selectionchrome.h"
#include "view.h"

#include <QVariantAnimation>

namespace LayerFlash {

void flash(View *layer)
{
    auto *overlay = new View(QRectF(QPointF(0, 0), layer->bounds().size()));
    overlay->setBackgroundColor(HexColor::fromString(QStringLiteral("00D3FF")));
    overlay->setAlpha(0.2);
    SelectionChrome::mark(overlay);
    layer->addSubview(overlay);
    auto *fade = new QVariantAnimation(overlay);
    fade->setDuration(850);
    fade->setStartValue(0.2);
    fade->setEndValue(0.0);
    QObject::connect(fade, &QVariantAnimation::valueChanged, overlay,
        [overlay](const QVariant &value) { overlay->setAlpha(value.toReal()); });
    QObject::connect(fade, &QVariantAnimation::finished, overlay, [overlay] {
        overlay->removeFromSuperview();
        overlay->deleteLater();
    });
    fade->start();
}

} // namespace LayerFlash
