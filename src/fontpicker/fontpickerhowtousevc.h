#pragma once

#include "viewcontroller.h"

#include <QStringList>

/** "How To Use Fonts": how to download a catalog and how to add a font of one's own. */
class FontpickerHowToUseVC : public ViewController
{
    Q_OBJECT
    /** The pictures shown, as image sources. */
    Q_PROPERTY(QStringList images READ images CONSTANT)
public:
    explicit FontpickerHowToUseVC(QObject *parent = nullptr);

    [[nodiscard]] QStringList images() const
    {
        return { QStringLiteral("image://assets/fontpicker_howtouse_download"),
            QStringLiteral("image://assets/fontpicker_howtouse_custom") };
    }
    /** Back to the font library. */
    Q_INVOKABLE void back();
};
