#include "panelmodel.h"

PanelModel::PanelModel(QString text, QObject *parent)
    : QObject(parent)
    , m_text(std::move(text))
{ }

void PanelModel::setProgress(qreal progress)
{
    if (qFuzzyCompare(m_progress, progress))
        return;
    m_progress = progress;
    Q_EMIT progressChanged();
}
