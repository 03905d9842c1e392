#pragma once

#include <QObject>
#include <QString>

/**
 * A blocking notice over the screen while work runs (a waiting notice or a progress HUD): a text, a
 * detail line under it and, once the work can tell, how far it has come. QML draws it and lets no touch
 * through; the code that presented it through the navigation controller dismisses it. A screen may
 * also hold one and draw it over a part of itself only.
 */
class PanelModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text CONSTANT)
    Q_PROPERTY(QString detailText READ detailText NOTIFY detailTextChanged)
    /** 0 to 1; below 0 while the work cannot tell yet. */
    Q_PROPERTY(qreal progress READ progress NOTIFY progressChanged)
    /** Drawn in the accent colour with white text rather than on the plain surface. */
    Q_PROPERTY(bool accent READ isAccent CONSTANT)
public:
    enum class Style { Plain, Accent };

    explicit PanelModel(QString text, QObject *parent = nullptr);
    PanelModel(QString text, Style style, QObject *parent = nullptr);

    [[nodiscard]] QString text() const { return m_text; }
    [[nodiscard]] QString detailText() const { return m_detailText; }
    void setDetailText(const QString &detailText);
    [[nodiscard]] qreal progress() const { return m_progress; }
    void setProgress(qreal progress);
    [[nodiscard]] bool isAccent() const { return m_style == Style::Accent; }

Q_SIGNALS:
    void progressChanged();
    void detailTextChanged();

private:
    QString m_text;
    QString m_detailText;
    qreal m_progress = -1;
    Style m_style = Style::Plain;
};
