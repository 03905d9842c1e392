#include "localnotificationcenter.h"

#include "applog.h"

#include <QApplication>
#include <QGuiApplication>
#include <QSystemTrayIcon>
#include <QTimer>

#include <algorithm>
#include <chrono>

LocalNotificationCenter::LocalNotificationCenter(QObject *parent)
    : QObject(parent)
{ }

LocalNotificationCenter::~LocalNotificationCenter() = default;

LocalNotificationCenter &LocalNotificationCenter::current()
{
    static LocalNotificationCenter center;
    return center;
}

void LocalNotificationCenter::removePendingNotificationRequests(const QStringList &identifiers)
{
    for (auto pending = m_pending.begin(); pending != m_pending.end();) {
        if (identifiers.contains(pending->request.identifier)) {
            delete pending->timer;
            pending = m_pending.erase(pending);
        } else {
            ++pending;
        }
    }
}

void LocalNotificationCenter::add(const Request &request, const std::function<void()> &completion)
{
    removePendingNotificationRequests({ request.identifier });
    auto *timer = new QTimer(this);
    timer->setSingleShot(true);
    const qint64 wait = std::max<qint64>(0, QDateTime::currentDateTime().msecsTo(request.fireDate));
    timer->setInterval(std::chrono::milliseconds(wait));
    connect(timer, &QTimer::timeout, this, [this, identifier = request.identifier] { deliver(identifier); });
    m_pending.append({ request, timer });
    timer->start();
    if (completion)
        completion();
}

QList<LocalNotificationCenter::Request> LocalNotificationCenter::pendingRequests() const
{
    QList<Request> requests;
    for (const Pending &pending : m_pending)
        requests.append(pending.request);
    return requests;
}

void LocalNotificationCenter::deliver(const QString &identifier)
{
    const auto due = std::find_if(m_pending.begin(), m_pending.end(),
        [&identifier](const Pending &pending) { return pending.request.identifier == identifier; });
    if (due == m_pending.end())
        return;
    const Request request = due->request;
    due->timer->deleteLater();
    m_pending.erase(due);
    present(request);
    Q_EMIT delivered(request.identifier, request.body);
}

void LocalNotificationCenter::present(const Request &request)
{
    if (m_presenter) {
        m_presenter(request);
        return;
    }
    // The tray needs a widgets application and a desktop that shows trays.
    if (!m_tray && qobject_cast<QApplication *>(QCoreApplication::instance())
        && QSystemTrayIcon::isSystemTrayAvailable()) {
        m_tray = new QSystemTrayIcon(QGuiApplication::windowIcon(), this);
        m_tray->show();
    }
    if (m_tray && QSystemTrayIcon::supportsMessages())
        m_tray->showMessage(QGuiApplication::applicationDisplayName(), request.body);
    else
        AppLog::print(QStringLiteral("Notification: ") + request.body);
}
