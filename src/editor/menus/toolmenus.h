#pragma once

#include "customcolorpicker.h"
#include "menuitems.h"
#include "menusliders.h"

#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

class EditorSession;
class MenuContent;
class MenuScreens;

/** What `menuCollectionView.tag` says its bar shows. */
namespace MenuTag {
inline constexpr int noMenuTag = 0;
inline constexpr int bgTag = 1;
inline constexpr int stickerTag = 2;
inline constexpr int frameTag = 3;
inline constexpr int fontTag = 4;
inline constexpr int adjustmentTag = 5;
inline constexpr int filterMenuTag = 6;
inline constexpr int textureTag = 7;
} // namespace MenuTag

/** What `contentCollectionView.tag` says its bar shows. */
namespace ContentTag {
inline constexpr int menuTag = 1;
inline constexpr int frameDetailsTag = 4;
inline constexpr int fontStyleTag = 5;
inline constexpr int alignmentTag = 6;
inline constexpr int flipTag = 7;
inline constexpr int filterTag = 8;
inline constexpr int textureDetailsTag = 9;
inline constexpr int textColorTag = 10;
inline constexpr int editTextTag = 11;
inline constexpr int bgDetailsTag = 200;
inline constexpr int stickerDetailsTag = 300;
/** The sticker bar's Crop row shows its content under this offset from `stickerDetailsTag`. */
inline constexpr int stickerShapeCropIndex = 7;
} // namespace ContentTag

/**
 * The bars below the canvas: the top-level menu (`menuContentCollectionView`), the selected layer's or
 * the background's tool bar (`menuCollectionView`), that tool's content (`contentCollectionView`) and the
 * shared area of sliders and pickers (`viewContent`). The two tags are the state; they change through
 * the selection and the rows, and every row acts on the session. It needs no screen: the tests and
 * quillet-tool tap its rows as the bars do.
 */
class ToolMenus : public QObject, public CustomColorPickerDelegate
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the editor session")
    Q_PROPERTY(int menuTag READ menuTag NOTIFY barsChanged)
    Q_PROPERTY(int contentTag READ contentTag NOTIFY barsChanged)
    /** The tool bar's selected row, reset to 0 whenever a bar opens. */
    Q_PROPERTY(int menuSelectedIndex READ menuSelectedIndex NOTIFY barsChanged)
    /** The content bar's selected row; -1 for none. */
    Q_PROPERTY(int contentSelectedIndex READ contentSelectedIndex NOTIFY barsChanged)
    /** The top level's rows, as maps with "text", "image", "selectedImage", "isSelect". */
    Q_PROPERTY(QVariantList topItems READ topItems NOTIFY barsChanged)
    /** The tool bar's rows; empty at the top level. */
    Q_PROPERTY(QVariantList menuItems READ menuItems NOTIFY barsChanged)
    /** The content bar's rows: pictures, words (with "fontFamily" for fonts) or tiles. */
    Q_PROPERTY(QVariantList contentItems READ contentItems NOTIFY barsChanged)
    /** Which control the shared area shows. */
    Q_PROPERTY(Control control READ control NOTIFY barsChanged)
    /** The colour strip's colours, as colours. */
    Q_PROPERTY(QVariantList colors READ colors CONSTANT)
    /** The strip's swatch of the selected layer's or the background's colour; -1 for none. */
    Q_PROPERTY(int colorIndex READ colorIndex NOTIFY barsChanged)
    /** The content has no rows: "No items found" shows instead. */
    Q_PROPERTY(bool noDataShown READ noDataShown NOTIFY barsChanged)
    Q_PROPERTY(bool popTipShown READ popTipShown NOTIFY popTipChanged)
    Q_PROPERTY(QString popTipText READ popTipText CONSTANT)
    Q_PROPERTY(MenuSliders *sliders READ sliders CONSTANT)
public:
    /** The control of the shared area: a slider, the rotation or scale view with hold buttons, the colours. */
    enum class Control { None, Slider, Rotation, Scale, Colors };
    Q_ENUM(Control)

    explicit ToolMenus(EditorSession &session);
    ~ToolMenus() override;

    [[nodiscard]] EditorKind editorKind() const { return m_kind; }
    [[nodiscard]] int menuTag() const { return m_menuTag; }
    [[nodiscard]] int contentTag() const { return m_contentTag; }
    [[nodiscard]] int menuSelectedIndex() const { return m_menuSelectedIndex; }
    [[nodiscard]] int contentSelectedIndex() const { return m_contentSelectedIndex; }
    [[nodiscard]] QVariantList topItems() const;
    [[nodiscard]] QVariantList menuItems() const;
    [[nodiscard]] QVariantList contentItems() const;
    [[nodiscard]] Control control() const { return m_control; }
    [[nodiscard]] QVariantList colors() const;
    [[nodiscard]] int colorIndex() const;
    [[nodiscard]] bool noDataShown() const { return m_noDataShown; }
    [[nodiscard]] bool popTipShown() const { return m_popTipShown; }
    [[nodiscard]] static QString popTipText();
    [[nodiscard]] MenuSliders *sliders() const { return m_sliders; }

    /** The top level's rows (`itemsArray`). */
    [[nodiscard]] QList<MenuItem> topRows() const;
    /**
     * The rows of the bar that the menu tag picks: the top level's at `noMenuTag`, else the tool bar's, or
     * the content's for a tool whose rows are its content (the filters).
     */
    [[nodiscard]] QList<MenuItem> barRows() const;
    /** The rows' words, or the picture's name of a row without one: what quillet-tool prints. */
    [[nodiscard]] QStringList barTexts() const;
    [[nodiscard]] const QList<MenuItem> &contentRows() const { return m_contentRows; }

    /** The width of the SAVE button on a screen of `screenWidth` points. */
    Q_INVOKABLE static int saveButtonWidth(qreal screenWidth);

    /** The selection changed: the bar of the selected layer's kind, or the top level. */
    void selectionChanged();
    /** Back to the top level from any tool bar (`showMainMenu`). */
    Q_INVOKABLE void showMainMenu();
    /** After undo and redo, and when the selected layer leaves: the pop tip and notice go, then the top level. */
    void backToTopLevel();
    /**
     * A tap on the canvas outside every layer: a selection is cleared and the bars reset; with nothing
     * selected the background's bar opens, or closes again when a bar is open.
     */
    Q_INVOKABLE void canvasTapped();

    /** A row of the top level, by its number. */
    Q_INVOKABLE void didSelectTopRow(int row);
    /** A row of the tool bar, by its number. */
    Q_INVOKABLE void didSelectMenuRow(int row);
    /** A row of the content bar, by its number. */
    Q_INVOKABLE void didSelectContentRow(int row);
    /** A swatch of the colour strip: the selected text, sticker or the background takes it. */
    Q_INVOKABLE void didSelectColor(int index);
    /** The strip's header: "CustomColorPicker" for any other colour. */
    Q_INVOKABLE void openCustomColorPicker();
    void customColorPicked(const QColor &color) override;
    /** The pop tip about fonts, tapped: the how-to-use screen of the font library. */
    Q_INVOKABLE void popTipTapped();
    Q_INVOKABLE void hidePopTip();

Q_SIGNALS:
    void barsChanged();
    void popTipChanged();
    /** "Music" of a video editor's top level, for the audio library to answer. */
    void mediaRowSelected(const QString &text);

private:
    /** Opens a tool bar: its rows, row 0 selected, every control hidden, then the content and its control. */
    void openBar(int menuTag, const QList<MenuItem> &rows, int contentTag, Control control = Control::None);
    void openTextBar();
    /** Shows a tool's content under `contentTag`; the controls of the shared area are hidden first. */
    void showContent(int contentTag, Control control = Control::None);
    void showControl(Control control);
    void openBackgroundBar();
    void openSlider(MenuSliders::Kind kind);
    void stickerRow(const QString &word);
    void textRow(const QString &word);
    void adjustmentRow(const QString &word);
    void backgroundRow(const QString &word);
    void showFontPopTipOnce();
    [[nodiscard]] bool pictureBackground() const;

    EditorSession &m_session;
    const EditorKind m_kind;
    const std::unique_ptr<MenuScreens> m_screens;
    const std::unique_ptr<MenuContent> m_content;
    MenuSliders *const m_sliders;
    int m_menuTag = MenuTag::noMenuTag;
    int m_contentTag = 0;
    int m_menuSelectedIndex = 0;
    int m_contentSelectedIndex = -1;
    QList<MenuItem> m_menuRows;
    QList<MenuItem> m_contentRows;
    Control m_control = Control::None;
    bool m_noDataShown = false;
    bool m_popTipShown = false;
};
