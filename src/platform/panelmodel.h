#pragma once

#include <QObject>
#include <QString>

/**
 * A blocking notice over the screen while work runs (a waiting notice or a progress HUD): a text and,
 * once the work can tell, how far it has come. QML draws it and lets no touch through; the code that
 * presented it through the navigation controller dismisses it.
 */
class PanelModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text CONSTANT)
    /** 0 to 1; below 0 while the work cannot tell yet. */
    Q_PROPERTY(qreal progress READ progress NOTIFY progressChanged)
public:
    explicit PanelModel(QString text, QObject *parent = nullptr);

    [[nodiscard]] QString text() const { return m_text; }
    [[nodiscard]] qreal progress() const { return m_progress; }
    void setProgress(qreal progress);

Q_SIGNALS:
    void progressChanged();

private:
    QString m_text;
    qreal m_progress = -1;
};
