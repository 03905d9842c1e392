#include "fontpickerdownloadvc.h"

#include "applog.h"
#include "fontlist.h"
#include "fontregistry.h"
#include "qffontpicker.h"

#include <QGuiApplication>
#include <QVariantMap>

namespace {
constexpr qreal rowFontSize = 17.0;
}

FontpickerDownloadVC::FontpickerDownloadVC(QObject *parent)
    : FontpickerPage(parent)
{ }

FontpickerDownloadVC::~FontpickerDownloadVC()
{
    AppLog::print(QStringLiteral("Display downloaded font page remove from memory"));
}

void FontpickerDownloadVC::setFontpicker(QFFontpicker *fontpicker)
{
    FontpickerPage::setFontpicker(fontpicker);
    if (fontpicker)
        connect(
            fontpicker, &QFFontpicker::fontListChanged, this, &FontpickerDownloadVC::rowsChanged, Qt::UniqueConnection);
    Q_EMIT rowsChanged();
}

QVariantList FontpickerDownloadVC::rows() const
{
    QVariantList rows;
    for (const auto &catalog : FontList::read().value_or(FontList::Catalogs())) {
        for (const auto &font : catalog->font_list.value_or(QList<std::shared_ptr<FontpickerFontList>>())) {
            if (!font)
                continue;
            const std::optional<QFont> face
                = FontRegistry::shared().font(font->ios_font_name.value_or(QString()), rowFontSize);
            rows.append(QVariantMap {
                { QStringLiteral("text"), face ? font->font_name.value_or(QString()) : QStringLiteral("Unknown Font") },
                { QStringLiteral("font"), face.value_or(QGuiApplication::font()) },
                { QStringLiteral("known"), face.has_value() } });
        }
    }
    return rows;
}
