#pragma once

#include "viewcontroller.h"

#include <QFutureWatcher>
#include <QImage>
#include <QStringList>

class NavigationController;
class Storyboard;

/**
 * The print panel: a picture, the system's printers and a PDF file as one more destination, and the
 * number of copies. Print sends one job under `jobName` and closes the panel; the job is drawn off the
 * GUI thread. The opener sets the public fields before presenting it.
 */
class PrintInteractionController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QString jobName MEMBER jobName CONSTANT)
    /** The destinations: the system's printers, then the PDF file. */
    Q_PROPERTY(QStringList printers READ printers CONSTANT)
    Q_PROPERTY(int printerIndex READ printerIndex WRITE setPrinterIndex NOTIFY printerIndexChanged)
    Q_PROPERTY(bool showsNumberOfCopies MEMBER showsNumberOfCopies CONSTANT)
    Q_PROPERTY(int copies READ copies WRITE setCopies NOTIFY copiesChanged)
    Q_PROPERTY(bool printing READ isPrinting NOTIFY printingChanged)
    /** Why the last job failed; empty when it went out. */
    Q_PROPERTY(QString errorString READ errorString NOTIFY printingChanged)
public:
    explicit PrintInteractionController(QObject *parent = nullptr);

    /**
     * Presents the panel for a finished picture as every screen prints one: job "PrintingReceipt", the
     * number of copies shown. Null when there is no stack or no panel registered.
     */
    static PrintInteractionController *presentFor(
        const QImage &picture, NavigationController *navigation, const Storyboard *storyboard);

    QString jobName;
    QImage printingItem;
    bool showsNumberOfCopies = false;
    /** Where the PDF destination writes; below the Pictures location unless set. */
    QString pdfFile;

    [[nodiscard]] QStringList printers() const { return m_printers; }
    [[nodiscard]] int pdfIndex() const { return int(m_printers.size()) - 1; }
    [[nodiscard]] int printerIndex() const { return m_printerIndex; }
    void setPrinterIndex(int index);
    [[nodiscard]] int copies() const { return m_copies; }
    void setCopies(int copies);
    [[nodiscard]] bool isPrinting() const { return m_job.isRunning(); }
    [[nodiscard]] QString errorString() const { return m_errorString; }

    /** Sends the job; the panel closes when it has gone out, or stays with `errorString` when it failed. */
    Q_INVOKABLE void print();
    /** Closes the panel without printing. */
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void printerIndexChanged();
    void copiesChanged();
    void printingChanged();
    /** The job went out (true) or failed (false). */
    void printed(bool completed);

private:
    QStringList m_printers;
    int m_printerIndex = 0;
    int m_copies = 1;
    QString m_errorString;
    QFutureWatcher<QString> m_job;
};
