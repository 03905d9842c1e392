#include "panelmodel.h"

PanelModel::PanelModel(QString text, QObject *parent)
    : PanelModel(std::move(text), Style::Plain, parent)
{ }

PanelModel::PanelModel(QString text, Style style, QObject *parent)
    : QObject(parent)
    , m_text(std::move(text))
    , m_style(style)
{ }

void PanelModel::setDetailText(const QString &detailText)
{
    if (m_detailText == detailText)
        return;
    m_detailText = detailText;
    Q_EMIT detailTextChanged();
}

void PanelModel::setProgress(qreal progress)
{
    if (qFuzzyCompare(m_progress, progress))
        return;
    m_progress = progress;
    Q_EMIT progressChanged();
}
