#pragma once

#include <QObject>

/**
 * Tells the screens of the process that the saved designs changed, whichever store object wrote them:
 * the editors, the export and the tool each open their own, and the list screens must still hear it.
 */
class DesignStoreChanges : public QObject
{
    Q_OBJECT
public:
    /** The process's notifier; lives as long as the GUI thread. */
    static DesignStoreChanges &shared();

Q_SIGNALS:
    /** A design row was written or removed. */
    void designsChanged();

private:
    DesignStoreChanges() = default;
};
