#include "layerkinds.h"

QRectF SlotKind::storedFrame(const Record &record)
{
    constexpr qreal margin = Layer::buttonSize;
    return { record.xPos.value_or(0), record.yPos.value_or(0), record.width.value_or(0) + margin,
        record.height.value_or(0) + margin };
}

QRectF SlotKind::templateFrame(const QRectF &converted)
{
    constexpr qreal inset = Layer::contentInset;
    constexpr qreal margin = Layer::buttonSize;
    return { converted.x() - inset, converted.y() - inset, converted.width() + margin, converted.height() + margin };
}

QRectF OutlinedSlotKind::storedFrame(const Record &record)
{
    constexpr qreal margin = Layer::buttonSize;
    return { record.xPos.value_or(0), record.yPos.value_or(0), record.width.value_or(0) + margin,
        record.height.value_or(0) + margin };
}

QRectF OutlinedSlotKind::templateFrame(const QRectF &converted)
{
    // The outline's stroke lies one point outside the template's box.
    constexpr qreal inset = Layer::contentInset + 1;
    constexpr qreal margin = Layer::buttonSize + 2;
    return { converted.x() - inset, converted.y() - inset, converted.width() + margin, converted.height() + margin };
}

QRectF StickerKind::storedFrame(const Record &record)
{
    return { record.xPos.value_or(0) - Layer::contentInset, record.yPos.value_or(0) - Layer::contentInset,
        record.width.value_or(0), record.height.value_or(0) };
}

QRectF StickerKind::templateFrame(const QRectF &converted)
{
    return converted.translated(-Layer::contentInset, -Layer::contentInset);
}

QRectF TextKind::storedFrame(const Record &record)
{
    return Layer::frameForTextAt(QPointF(record.xPos.value_or(0), record.yPos.value_or(0)));
}

QRectF TextKind::templateFrame(const QRectF &converted)
{
    return Layer::frameForTextAt(converted.topLeft());
}

namespace LayerKinds {

std::optional<Identity> identify(const View *view)
{
    std::optional<Identity> identity;
    forEach([view, &identity](auto kind) {
        using Kind = decltype(kind);
        if (const auto *layer = qobject_cast<const typename Kind::Layer *>(view)) {
            const auto &record = Kind::recordOf(*layer);
            identity = Identity { Kind::kind, record ? record->index : std::nullopt };
        }
    });
    return identity;
}

QString name(LayerKind kind)
{
    switch (kind) {
    case LayerKind::Slot:
        return QStringLiteral("slot");
    case LayerKind::OutlinedSlot:
        return QStringLiteral("outlined");
    case LayerKind::Sticker:
        return QStringLiteral("sticker");
    case LayerKind::Text:
        return QStringLiteral("text");
    }
    return {};
}

} // namespace LayerKinds
