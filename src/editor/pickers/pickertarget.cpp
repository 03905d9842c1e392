#include "pickertarget.h"

#include "navigationcontroller.h"
#include "viewcontroller.h"

PickerTarget *PickerTarget::find(ViewController *preferred, ViewController *picker)
{
    if (auto *target = dynamic_cast<PickerTarget *>(preferred))
        return target;
    NavigationController *stack = picker ? picker->navigationController() : nullptr;
    if (!stack)
        return nullptr;
    const QList<ViewController *> screens = stack->viewControllers();
    for (qsizetype i = screens.indexOf(picker) - 1; i >= 0; --i) {
        if (auto *target = dynamic_cast<PickerTarget *>(screens.at(i)))
            return target;
    }
    return nullptr;
}

void PickerTarget::popTo(PickerTarget *target, ViewController *picker)
{
    NavigationController *stack = picker ? picker->navigationController() : nullptr;
    if (auto *screen = dynamic_cast<ViewController *>(target); stack && screen)
        stack->popTo(screen);
}
