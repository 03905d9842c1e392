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

AlertModel *AlertModel::addTextField(const QString &placeholder, bool numeric)
{
    m_placeholders.append(placeholder);
    m_numeric.append(numeric);
    m_texts.append(QString());
    Q_EMIT textFieldsChanged();
    return this;
}

void AlertModel::setTextFieldText(int index, const QString &text)
{
    if (index < 0 || index >= m_texts.size() || m_texts.at(index) == text)
        return;
    m_texts[index] = text;
    Q_EMIT textFieldsChanged();
    Q_EMIT textFieldEdited(index);
}

void AlertModel::setActionEnabled(const QString &actionTitle, bool enabled)
{
    if (enabled == !m_disabled.contains(actionTitle))
        return;
    if (enabled)
        m_disabled.removeAll(actionTitle);
    else
        m_disabled.append(actionTitle);
    Q_EMIT actionsEnabledChanged();
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
        if (action.title == actionTitle && !m_disabled.contains(actionTitle)) {
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
