#include "searchvc.h"

#include "navigationcontroller.h"

#include <QVariant>

SearchVC::SearchVC(QObject *parent)
    : TagSearchVC(parent)
{ }

void SearchVC::viewDidLoad()
{
    setTitle(categoryName);
    TagSearchVC::viewDidLoad();
}

void SearchVC::search(const QString &text)
{
    tag = text;
    Q_EMIT tagChosen(tag);
    NavigationController *stack = navigationController();
    if (!stack || stack->topViewController() != this)
        return;
    // The opener below reads its `tag` when it appears again.
    const QList<ViewController *> screens = stack->viewControllers();
    if (screens.size() > 1)
        screens.at(screens.size() - 2)->setProperty("tag", tag);
    stack->pop();
}
