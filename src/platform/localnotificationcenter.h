#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

class QSystemTrayIcon;
class QTimer;

/**
 * Local notifications: requests with an identifier, a text and the time they are due, kept until
 * then and delivered while the application runs, through the system tray's message where the desktop
 * has one and on the application's log otherwise. A request replaces a pending one of the same
 * identifier. GUI thread only.
 */
class LocalNotificationCenter : public QObject
{
    Q_OBJECT
public:
    struct Request
    {
        QString identifier;
        QString body;
        QDateTime fireDate;
    };
    /** Shows a due notification. */
    using Presenter = std::function<void(const Request &request)>;

    explicit LocalNotificationCenter(QObject *parent = nullptr);
    ~LocalNotificationCenter() override;

    /** The application's one center. */
    [[nodiscard]] static LocalNotificationCenter &current();

    /** How due notifications show; the tray or the log unless set. */
    void setPresenter(Presenter presenter) { m_presenter = std::move(presenter); }

    void removePendingNotificationRequests(const QStringList &identifiers);
    /** Schedules `request`; `completion` runs once it is pending. */
    void add(const Request &request, const std::function<void()> &completion = {});
    [[nodiscard]] QList<Request> pendingRequests() const;

Q_SIGNALS:
    void delivered(const QString &identifier, const QString &body);

private:
    struct Pending
    {
        Request request;
        QTimer *timer = nullptr;
    };
    void deliver(const QString &identifier);
    void present(const Request &request);

    QList<Pending> m_pending;
    Presenter m_presenter;
    QSystemTrayIcon *m_tray = nullptr;
};
