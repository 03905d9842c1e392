#pragma once

#include "fontpickerpage.h"

#include <QVariantList>

/** DOWNLOADED: every font of the list, each name in its own face, "Unknown Font" when it has none. */
class FontpickerDownloadVC : public FontpickerPage
{
    Q_OBJECT
    /** One map per font: text, font (a QFont), known. */
    Q_PROPERTY(QVariantList rows READ rows NOTIFY rowsChanged)
public:
    explicit FontpickerDownloadVC(QObject *parent = nullptr);
    ~FontpickerDownloadVC() override;

    [[nodiscard]] QVariantList rows() const;
    void setFontpicker(QFFontpicker *fontpicker) override;

Q_SIGNALS:
    void rowsChanged();
};
