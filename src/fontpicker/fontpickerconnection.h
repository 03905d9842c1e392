#pragma once

#include <QColor>
#include <QMap>
#include <QString>
#include <QUrl>

/** The font library's settings, filled by the application shell at start. */
struct FontpickerConnection
{
    qint64 sub_category_id = 0; // which sub-category serves the font catalogs
    QColor barLeftGradientColor;
    QColor barRightGradientColor;
    QUrl serverURL; // ends with a slash
    QString font_path;
    QColor intPimaryColor;
    QMap<QString, QString> tokenHeader; // sent while no "fontpickertoken" is stored
};
