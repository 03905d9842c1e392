#pragma once

#include "tagsearchvc.h"

class Storyboard;

/**
 * The template search: the popular tags of stories or of highlight covers; a chosen tag or a confirmed
 * text opens its results. Reached through a deep link, it searches for the link's text at once.
 */
class SearchCatalogVC : public TagSearchVC
{
    Q_OBJECT
    /** The text to search for, from a deep link. */
    Q_PROPERTY(QString searchTxt MEMBER searchTxt)
    /** Reached through a deep link: searches for `searchTxt` when it appears. */
    Q_PROPERTY(bool isUniversalLink MEMBER isUniversalLink)
public:
    explicit SearchCatalogVC(QObject *parent = nullptr);

    bool isVideo = false;
    /** Offers the highlight covers' tags. */
    bool isHightlight = false;
    /** Shows the results as highlight covers, for the highlight editor. */
    bool isHightLightEditor = false;
    QString searchTxt;
    bool isUniversalLink = false;

    [[nodiscard]] static QStringList storyTags();
    [[nodiscard]] static QStringList tagArrayForHightsLights();

    void setStoryboard(const Storyboard *storyboard) { m_storyboard = storyboard; }

    /** A deep link's text goes into the search bar and is searched, once. */
    void viewWillAppear() override;

protected:
    void search(const QString &text) override;
    [[nodiscard]] QStringList tags() const override;

private:
    const Storyboard *m_storyboard = nullptr;
};
