#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

/**
 * An alert or action sheet as the user sees it: title, message and buttons, drawn by QML. Tests read
 * it and press a button by its title.
 */
class AlertModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString message READ message CONSTANT)
    /** Button titles in the order they were added. */
    Q_PROPERTY(QStringList actionTitles READ actionTitles CONSTANT)
    /** The title of the cancel-style button, empty if there is none. */
    Q_PROPERTY(QString cancelTitle READ cancelTitle CONSTANT)
    /** True for an action sheet, false for a centred alert. */
    Q_PROPERTY(bool actionSheet READ isActionSheet CONSTANT)
public:
    enum class Style { Default, Cancel, Destructive };

    AlertModel(QString title, QString message, bool actionSheet = false, QObject *parent = nullptr);

    AlertModel *addAction(const QString &title, Style style = Style::Default, std::function<void()> handler = {});

    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] QStringList actionTitles() const;
    [[nodiscard]] QString cancelTitle() const;
    [[nodiscard]] bool isActionSheet() const { return m_actionSheet; }

    /** Presses the button with this title: the alert closes, then its handler runs. False if there is none. */
    Q_INVOKABLE bool trigger(const QString &actionTitle);
    /** Closes the alert without an answer, as a blocking notice (an alert without buttons) ends. */
    void close();

Q_SIGNALS:
    /** The alert was answered and should disappear. */
    void finished();

private:
    struct Action
    {
        QString title;
        Style style;
        std::function<void()> handler;
    };
    QString m_title;
    QString m_message;
    bool m_actionSheet;
    QList<Action> m_actions;
};
