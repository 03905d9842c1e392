#include "createcolorcell.h"

#include <QVariantMap>

namespace {
constexpr int customRow = 0;
constexpr int transparentRow = 1;
constexpr int firstColorRow = 2;
} // namespace

CreateColorCell::CreateColorCell(ColorCellOwner *owner, QObject *parent)
    : QObject(parent)
    , m_owner(owner)
{ }

void CreateColorCell::setColors(const QStringList &colors)
{
    m_colors.clear();
    for (const QString &text : colors) {
        const QColor color(text.startsWith(QLatin1Char('#')) ? text : QLatin1Char('#') + text);
        if (color.isValid())
            m_colors.append(color);
    }
    Q_EMIT rowsChanged();
}

QVariantList CreateColorCell::rows() const
{
    const auto row = [](const QString &title, const QString &icon, const QString &picture, const QColor &color) {
        return QVariantMap { { QStringLiteral("title"), title }, { QStringLiteral("icon"), icon },
            { QStringLiteral("picture"), picture }, { QStringLiteral("color"), color } };
    };
    QVariantList list { row(QStringLiteral("Custom"), QStringLiteral("color_picker"), QString(), Qt::transparent),
        row(QStringLiteral("Transparent"), QString(), QStringLiteral("img_transperent_bg_bright"), Qt::transparent) };
    for (const QColor &color : m_colors)
        list.append(row(QString(), QString(), QString(), color));
    return list;
}

std::optional<QColor> CreateColorCell::colorAt(int row) const
{
    if (row < firstColorRow || row - firstColorRow >= m_colors.size())
        return std::nullopt;
    return m_colors.at(row - firstColorRow);
}

void CreateColorCell::select(int row)
{
    if (row < 0 || row >= firstColorRow + m_colors.size())
        return;
    if (row != m_selectedIndex) {
        m_selectedIndex = row;
        Q_EMIT selectedIndexChanged();
    }
    if (row == customRow)
        m_owner->openCustomColorPicker();
    else if (row == transparentRow)
        m_owner->selectColor(std::nullopt);
    else
        m_owner->selectColor(colorAt(row));
}
