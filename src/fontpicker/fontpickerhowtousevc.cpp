#include "fontpickerhowtousevc.h"

#include "navigationcontroller.h"

FontpickerHowToUseVC::FontpickerHowToUseVC(QObject *parent)
    : ViewController(parent)
{
    setTitle(QStringLiteral("How To Use Fonts"));
}

void FontpickerHowToUseVC::back()
{
    if (NavigationController *stack = navigationController(); stack && stack->topViewController() == this)
        stack->pop();
}
