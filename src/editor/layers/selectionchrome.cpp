#include "selectionchrome.h"

#include "view.h"

#include <QVariant>

namespace {
constexpr const char *property = "quilletSelectionChrome";
}

namespace SelectionChrome {

void mark(View *view)
{
    view->setProperty(property, true);
}

bool isChrome(const View *view)
{
    return view->property(property).toBool();
}

} // namespace SelectionChrome
