#pragma once

#include "templatesample.h"

/** The preview of video stories: the background names the video, which goes through the video cache. */
class ShowVideoSample : public TemplateSample
{
    Q_OBJECT
public:
    explicit ShowVideoSample(QObject *parent = nullptr);

    /** Whether the video of the present run has arrived. */
    [[nodiscard]] bool videoArrived() const { return m_videoArrived; }

protected:
    void prepare() override;
    void open() override;

private:
    void preloadWithVideo(const QStringList &names, const QString &video);
    void finishWhenComplete(bool withVideo);
    void finish();

    bool m_videoArrived = false;
    bool m_imagesArrived = false;
};
