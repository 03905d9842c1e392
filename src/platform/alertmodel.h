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
    /** An action sheet that a tablet shows at the top of the screen, below the bar, not in the middle. */
    Q_PROPERTY(bool anchoredAtTop READ isAnchoredAtTop CONSTANT)
    /** The placeholders of the text fields, one per field, in the order they were added. */
    Q_PROPERTY(QStringList textFieldPlaceholders READ textFieldPlaceholders NOTIFY textFieldsChanged)
    /** Per field, whether it takes digits only. */
    Q_PROPERTY(QList<bool> textFieldNumeric READ textFieldNumeric NOTIFY textFieldsChanged)
    /** What the text fields hold. */
    Q_PROPERTY(QStringList textFieldTexts READ textFieldTexts NOTIFY textFieldsChanged)
    /** Titles of the buttons that cannot be pressed at the moment. */
    Q_PROPERTY(QStringList disabledActionTitles READ disabledActionTitles NOTIFY actionsEnabledChanged)
public:
    enum class Style { Default, Cancel, Destructive };

    AlertModel(QString title, QString message, bool actionSheet = false, QObject *parent = nullptr);

    AlertModel *addAction(const QString &title, Style style = Style::Default, std::function<void()> handler = {});
    /** Adds a text field; `numeric` asks for a number pad. Fields are added before the alert is presented. */
    AlertModel *addTextField(const QString &placeholder, bool numeric = false);
    void setActionEnabled(const QString &actionTitle, bool enabled);
    /** Set before the alert is presented. */
    void setAnchoredAtTop(bool top) { m_anchoredAtTop = top; }

    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] QString message() const { return m_message; }
    [[nodiscard]] QStringList actionTitles() const;
    [[nodiscard]] QString cancelTitle() const;
    [[nodiscard]] bool isActionSheet() const { return m_actionSheet; }
    [[nodiscard]] bool isAnchoredAtTop() const { return m_anchoredAtTop; }
    [[nodiscard]] QStringList textFieldPlaceholders() const { return m_placeholders; }
    [[nodiscard]] QList<bool> textFieldNumeric() const { return m_numeric; }
    [[nodiscard]] QStringList textFieldTexts() const { return m_texts; }
    [[nodiscard]] QStringList disabledActionTitles() const { return m_disabled; }

    /** The user edited field `index`; `textFieldEdited` follows, as after each keystroke. */
    Q_INVOKABLE void setTextFieldText(int index, const QString &text);

    /**
     * Presses the button with this title: the alert closes, then its handler runs. False if there is none
     * or it is disabled.
     */
    Q_INVOKABLE bool trigger(const QString &actionTitle);
    /** Closes the alert without an answer, as a blocking notice (an alert without buttons) ends. */
    void close();

Q_SIGNALS:
    /** The alert was answered and should disappear. */
    void finished();
    /** A text field changed by an edit; the owner may enable or disable buttons in answer. */
    void textFieldEdited(int index);
    void textFieldsChanged();
    void actionsEnabledChanged();

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
    bool m_anchoredAtTop = false;
    QList<Action> m_actions;
    QStringList m_placeholders;
    QList<bool> m_numeric;
    QStringList m_texts;
    QStringList m_disabled;
};
