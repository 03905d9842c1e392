#include "undohistory.h"

UndoHistory::UndoHistory(Target target, QObject *parent)
    : QObject(parent)
    , m_target(std::move(target))
{ }

void UndoHistory::registerUndo(Operation operation, nlohmann::ordered_json snapshot)
{
    std::vector<Step> &stack = m_state == State::Undoing ? m_redo : m_undo;
    if (m_state == State::Normal)
        m_redo.clear();
    stack.push_back({ operation, std::move(snapshot), QString() });
    m_lastRegistered = &stack;
}

void UndoHistory::setActionName(const QString &name)
{
    if (m_lastRegistered && !m_lastRegistered->empty())
        m_lastRegistered->back().actionName = name;
}

void UndoHistory::perform(std::vector<Step> &stack, State state)
{
    if (stack.empty() || m_state != State::Normal)
        return;
    Step step = std::move(stack.back());
    stack.pop_back();
    m_state = state;
    m_target(step.operation, std::move(step.snapshot));
    m_state = State::Normal;
    m_lastRegistered = nullptr;
}

void UndoHistory::undo()
{
    if (!canUndo())
        return;
    perform(m_undo, State::Undoing);
    Q_EMIT didUndo();
}

void UndoHistory::redo()
{
    if (!canRedo())
        return;
    perform(m_redo, State::Redoing);
    Q_EMIT didRedo();
}
