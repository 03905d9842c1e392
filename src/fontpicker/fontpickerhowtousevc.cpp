#include "fontpickerhowtousevc.h"

FontpickerHowToUseVC::FontpickerHowToUseVC(QObject *parent)
    : ViewController(parent)
{
    setTitle(QStringLiteral("How To Use Fonts"));
}
