#pragma once

#include <QCoreApplication>
#include <QMetaObject>

#include <functional>

/** Queues `work` for the GUI thread's event loop; runs it in place when there is no application. */
inline void runOnGuiThread(std::function<void()> work)
{
    if (QCoreApplication *application = QCoreApplication::instance())
        QMetaObject::invokeMethod(application, std::move(work), Qt::QueuedConnection);
    else
        work();
}
