#pragma once

#include "viewcontroller.h"

#include <QStringList>

/** "How To Use Fonts": how to download a catalog and how to add a font of one's own. */
class FontpickerHowToUseVC : public ViewController
{
    Q_OBJECT
    /** The pictures shown, by asset name. */
    Q_PROPERTY(QStringList images READ images CONSTANT)
public:
    explicit FontpickerHowToUseVC(QObject *parent = nullptr);

    [[nodiscard]] QStringList images() const
    {
        return { QStringLiteral("fontpicker_howtouse_download"), QStringLiteral("fontpicker_howtouse_custom") };
    }
};
