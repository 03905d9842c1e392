#pragma once

#include "fontpickerpage.h"

/** CUSTOM: font files of the user's own, behind a licence notice accepted once. */
class FontpickerCustomVC : public FontpickerPage
{
    Q_OBJECT
public:
    explicit FontpickerCustomVC(QObject *parent = nullptr);
    ~FontpickerCustomVC() override;

    /** On the first entry, the licence alert: "CANCEL" leaves, "I ACCEPT" remembers. */
    void viewWillAppear() override;
    /** A file picked in the document picker (`btnAddFonts`): checked, copied, registered, listed. */
    Q_INVOKABLE void documentPicked(const QUrl &file);

Q_SIGNALS:
    /** The licence was refused: the pager leaves. */
    void leaveRequested();
};
