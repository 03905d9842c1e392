#pragma once

#include <QObject>
#include <QString>

#include <nlohmann/json.hpp>

#include <functional>
#include <vector>

/**
 * The editor's undo manager: two stacks of (operation, snapshot) pairs. Every registration is one
 * step. A registration made while undoing lands on the redo stack, one made while redoing on the undo
 * stack, and one made by the user on the undo stack, clearing the redo stack. So the operations
 * themselves register their opposites, and the stacks keep the order in which they did.
 */
class UndoHistory : public QObject
{
    Q_OBJECT
public:
    enum class Operation { AddContent, RemoveContent };
    /** Performs a popped operation with its snapshot. */
    using Target = std::function<void(Operation, nlohmann::ordered_json)>;

    explicit UndoHistory(Target target, QObject *parent = nullptr);

    void registerUndo(Operation operation, nlohmann::ordered_json snapshot);
    /** Names the step registered last. */
    void setActionName(const QString &name);

    [[nodiscard]] bool canUndo() const { return !m_undo.empty(); }
    [[nodiscard]] bool canRedo() const { return !m_redo.empty(); }
    [[nodiscard]] bool isUndoing() const { return m_state == State::Undoing; }
    [[nodiscard]] bool isRedoing() const { return m_state == State::Redoing; }
    [[nodiscard]] QString undoActionName() const { return m_undo.empty() ? QString() : m_undo.back().actionName; }
    [[nodiscard]] QString redoActionName() const { return m_redo.empty() ? QString() : m_redo.back().actionName; }

    /** Pops and performs the last undo step; nothing when there is none. */
    void undo();
    void redo();

Q_SIGNALS:
    void didUndo();
    void didRedo();

private:
    enum class State { Normal, Undoing, Redoing };
    struct Step
    {
        Operation operation;
        nlohmann::ordered_json snapshot;
        QString actionName;
    };
    void perform(std::vector<Step> &stack, State state);

    Target m_target;
    std::vector<Step> m_undo;
    std::vector<Step> m_redo;
    std::vector<Step> *m_lastRegistered = nullptr;
    State m_state = State::Normal;
};
