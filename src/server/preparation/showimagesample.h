#pragma once

#include "templatesample.h"

/** The preview of image stories and highlight covers, new or opened again. */
class ShowImageSample : public TemplateSample
{
    Q_OBJECT
public:
    explicit ShowImageSample(QObject *parent = nullptr);

    /** Open the highlight editor, whose document names its preview by full address. */
    bool isHightLightEditor = false;
    bool isReeditImage = false;

protected:
    void prepare() override;
    void open() override;

private:
    void finish();
};
