#include "addtextvc.h"

#include "alertmodel.h"
#include "fontregistry.h"
#include "hexcolor.h"
#include "navigationcontroller.h"
#include "textentrytarget.h"

#include <cstdio>

namespace {
constexpr qreal demoFontSize = 30.0;
}

AddTextVC::AddTextVC(QObject *parent)
    : ViewController(parent)
    , colorsArray { QStringLiteral("ffffff"), QStringLiteral("F8C221"), QStringLiteral("E84342"),
        QStringLiteral("FF008C"), QStringLiteral("631553"), QStringLiteral("44AAB0"), QStringLiteral("8BA92C"),
        QStringLiteral("8E4312"), QStringLiteral("E266AF"), QStringLiteral("D98817"), QStringLiteral("1897DE"),
        QStringLiteral("2D8E2D"), QStringLiteral("063F7D"), QStringLiteral("4E4FB0"), QStringLiteral("CF432E"),
        QStringLiteral("220D2A") }
{
    fontItemsArray = defaultFontItems();
}

QList<FontItem> AddTextVC::defaultFontItems()
{
    QList<FontItem> items;
    for (const FontNameTable &face : FontRegistry::shared().applicationFaces())
        items.append({ face.postScriptName, 1 });
    for (const QString &weight : { QStringLiteral("Regular"), QStringLiteral("Light"), QStringLiteral("Medium"),
             QStringLiteral("Semibold"), QStringLiteral("Bold") })
        items.append({ systemFontName(weight), 0 });
    return items;
}

QString AddTextVC::systemFontName(const QString &weight)
{
    for (const QString &known :
        { QStringLiteral("Bold"), QStringLiteral("Light"), QStringLiteral("Medium"), QStringLiteral("Semibold") }) {
        if (weight == known)
            return QStringLiteral("SFUIText-") + known;
    }
    return QStringLiteral("SFUIText-Regular");
}

QString AddTextVC::rowTitle(const FontItem &item)
{
    if (item.name == QLatin1String("Text") && item.catalogId == 0)
        return QStringLiteral("Unknown Font");
    return item.name;
}

QFont AddTextVC::fontNamed(const QString &name) const
{
    QFont fallback;
    fallback.setPointSizeF(demoFontSize);
    return FontRegistry::shared().font(name, demoFontSize).value_or(fallback);
}

void AddTextVC::setFontItems(const QList<FontItem> &items)
{
    fontItemsArray = items;
    Q_EMIT fontRowsChanged();
}

void AddTextVC::viewDidLoad()
{
    setTitle(QStringLiteral("Add Text"));
    m_demoText = editText;
    m_demoFontName = editFont;
    m_demoFont = fontNamed(editFont);
    m_demoColor = editColor.value_or(QColor());
    Q_EMIT demoChanged();
}

void AddTextVC::setDemoText(const QString &text)
{
    if (m_demoText == text)
        return;
    m_demoText = text;
    Q_EMIT demoChanged();
}

QVariantList AddTextVC::colors() const
{
    QVariantList list;
    for (const QString &hex : colorsArray)
        list.append(HexColor::fromString(hex));
    return list;
}

QVariantList AddTextVC::fontRows() const
{
    QVariantList rows;
    for (const FontItem &item : fontItemsArray) {
        QFont font = fontNamed(item.name);
        font.setPointSizeF(17.0);
        rows.append(QVariantMap { { QStringLiteral("title"), rowTitle(item) }, { QStringLiteral("font"), font } });
    }
    return rows;
}

void AddTextVC::selectFont(int row)
{
    if (row < 0 || row >= fontItemsArray.size())
        return;
    m_demoFontName = fontItemsArray.at(row).name;
    m_demoFont = fontNamed(m_demoFontName);
    Q_EMIT demoChanged();
}

void AddTextVC::selectColor(int index)
{
    if (index < 0 || index >= colorsArray.size())
        return;
    m_demoColor = HexColor::fromString(colorsArray.at(index));
    hasSetTextColor = true;
    Q_EMIT demoChanged();
}

void AddTextVC::done()
{
    NavigationController *navigation = navigationController();
    if (m_demoText.isEmpty()) {
        if (navigation) {
            auto *alert = new AlertModel(QStringLiteral("Please Enter Text"), QString());
            alert->addAction(QStringLiteral("OK"), AlertModel::Style::Cancel);
            navigation->presentAlert(alert);
        }
        return;
    }
    if (!navigation)
        return;
    const QList<ViewController *> stack = navigation->viewControllers();
    if (stack.size() < 2)
        return;
    if (auto *editor = dynamic_cast<TextEntryTarget *>(stack.at(stack.size() - 2))) {
        const std::optional<QColor> color = m_demoColor.isValid() ? std::optional<QColor>(m_demoColor) : std::nullopt;
        editor->takeEnteredText(m_demoText, m_demoFontName, color, editText.isEmpty());
        std::fprintf(stdout, "NEW_TEXT:- %s\n", qPrintable(m_demoText));
        std::fflush(stdout);
        navigation->pop(true);
    }
}
