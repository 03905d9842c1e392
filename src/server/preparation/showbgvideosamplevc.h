#pragma once

#include "templatesample.h"

/** A video background chosen for an open video editor or for a new video design, played once cached. */
class ShowBGVideoSampleVC : public TemplateSample
{
    Q_OBJECT
    /** The cached video to play, looping and fitted; empty until it arrives. */
    Q_PROPERTY(QUrl videoFile READ videoFile NOTIFY videoFileChanged)
public:
    explicit ShowBGVideoSampleVC(QObject *parent = nullptr);

    qint64 vcTag = 0;
    /** A new design (true) or a background for the video editor below (false). */
    bool isCreateOwn = false;

    [[nodiscard]] QUrl videoFile() const { return m_videoFile; }

Q_SIGNALS:
    void videoFileChanged();

protected:
    void load() override;
    void prepare() override { }
    void open() override;

private:
    QUrl m_videoFile;
};
