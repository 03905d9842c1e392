#include "alertmodel.h"

AlertModel::AlertModel(QString title, QString message, bool actionSheet, QObject *parent)
    : QObject(parent)
    , m_title(std::move(title))
    , m_message(std::move(message))
    , m_actionSheet(actionSheet)
{ }

AlertModel *AlertModel::addAction(const QString &title, Style style, std::function<void()> handler)
{
    m_actions.append(Action { title, style, std::move(handler) });
    return this;
}

QStringList AlertModel::actionTitles() const
{
    QStringList titles;
    for (const Action &action : m_actions)
        titles.append(action.title);
    return titles;
}

QString AlertModel::cancelTitle() const
{
    for (const Action &action : m_actions) {
        if (action.style == Style::Cancel)
            return action.title;
    }
    return {};
}

bool AlertModel::trigger(const QString &actionTitle)
{
    for (const Action &action : std::as_const(m_actions)) {
        if (action.title == actionTitle) {
            const auto handler = action.handler;
            Q_EMIT finished();
            if (handler)
                handler();
            return true;
        }
    }
    return false;
}

void AlertModel::close()
{
    Q_EMIT finished();
}
