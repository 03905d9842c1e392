#include "storyboard.h"

#include "viewcontroller.h"

void Storyboard::registerFactory(const QString &identifier, const QUrl &viewUrl, Factory factory)
{
    m_entries.insert(identifier, Entry { viewUrl, std::move(factory) });
}

ViewController *Storyboard::instantiate(const QString &identifier) const
{
    const auto it = m_entries.constFind(identifier);
    if (it == m_entries.cend())
        return nullptr;
    ViewController *vc = it->factory();
    vc->m_identifier = identifier;
    vc->m_viewUrl = it->viewUrl;
    return vc;
}

QStringList Storyboard::identifiers() const
{
    QStringList names = m_entries.keys();
    names.sort();
    return names;
}
