#pragma once

#include "createcolorcell.h"
#include "customcolorpicker.h"
#include "ownpicturepage.h"

#include <optional>

class Storyboard;
struct PickerServices;

/**
 * "Pick your own" of the background pager: the gallery and camera rows, and the colour strip
 * (CreateColorCell) with "Custom" and "Transparent". A picture or a colour goes to the editor.
 */
class AddNewBackgroundVC : public OwnPicturePage, public ColorCellOwner, public CustomColorPickerDelegate
{
    Q_OBJECT
    Q_PROPERTY(CreateColorCell *colorCell READ colorCell CONSTANT)
public:
    explicit AddNewBackgroundVC(QObject *parent = nullptr);

    /** The colour tapped last; none for "Transparent". */
    std::optional<QColor> setColor;

    void setServices(const PickerServices &services);
    [[nodiscard]] CreateColorCell *colorCell() const { return m_colorCell; }

    /** "Gallery" opens the gallery; "Camera" says that this device takes no pictures. */
    void selectRow(int row) override;
    /** Hands `setColor` to the editor. */
    void colorSelection();

    void selectColor(const std::optional<QColor> &color) override;
    void openCustomColorPicker() override;
    void customColorPicked(const QColor &color) override;

protected:
    void handBack(ContentCategoryPager &pager, const QImage &picture) override;

private:
    CreateColorCell *const m_colorCell;
    const Storyboard *m_storyboard = nullptr;
};
