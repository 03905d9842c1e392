#pragma once

#include "exportmediatype.h"
#include "viewcontroller.h"

#include <QColor>

#include <functional>

/**
 * The modal choice of two items, shown by the video editors' SAVE as the movie or GIF question. Its
 * buttons tell the delegate which item was chosen; closing tells nothing.
 */
class ExportView : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QString titleText MEMBER titleText CONSTANT)
    Q_PROPERTY(QString itemText1 MEMBER itemText1 CONSTANT)
    Q_PROPERTY(QString itemText2 MEMBER itemText2 CONSTANT)
    /** Asset names of the items' pictures and of the close button. */
    Q_PROPERTY(QString img1 MEMBER img1 CONSTANT)
    Q_PROPERTY(QString img2 MEMBER img2 CONSTANT)
    Q_PROPERTY(QString closeImg MEMBER closeImg CONSTANT)
    Q_PROPERTY(QColor itemBgColor1 MEMBER itemBgColor1 CONSTANT)
    Q_PROPERTY(QColor itemBgColor2 MEMBER itemBgColor2 CONSTANT)
public:
    explicit ExportView(QObject *parent = nullptr);

    QString titleText;
    QString itemText1;
    QString itemText2;
    QString img1;
    QString img2;
    QString closeImg = QStringLiteral("ic_close");
    /** The tiles' colours; transparent leaves them to the view's theme. */
    QColor itemBgColor1 { Qt::transparent };
    QColor itemBgColor2 { Qt::transparent };
    /** Told the chosen item: `Video` for the first, `GIF` for the second. */
    std::function<void(ExportMediaType)> delegate;

    Q_INVOKABLE void btnItem1Clicked();
    Q_INVOKABLE void btnItem2Clicked();
    /** Dismisses the choice without an answer. */
    Q_INVOKABLE void closeClicked();

private:
    void choose(ExportMediaType type);
};
