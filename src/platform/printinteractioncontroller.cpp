#include "printinteractioncontroller.h"

#include "applog.h"
#include "navigationcontroller.h"
#include "photoalbum.h"
#include "storyboard.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QtConcurrent>

namespace {

struct Job
{
    QImage picture;
    QString name;
    QString printer; // empty: the PDF file
    QString pdfFile;
    int copies = 1;
};

// Draws the job; returns why it failed, or an empty text.
QString run(const Job &job)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(job.name);
    if (job.printer.isEmpty()) {
        QDir().mkpath(QFileInfo(job.pdfFile).absolutePath());
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(job.pdfFile);
    } else {
        printer.setPrinterName(job.printer);
    }
    printer.setCopyCount(job.copies);
    // A destination that cannot repeat a job itself gets the copies as pages.
    const int runs = printer.supportsMultipleCopies() ? 1 : job.copies;
    QPainter painter;
    if (!painter.begin(&printer))
        return QStringLiteral("the printer %1 cannot print").arg(job.printer.isEmpty() ? job.pdfFile : job.printer);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    const QSizeF fitted = QSizeF(job.picture.size()).scaled(page.size(), Qt::KeepAspectRatio);
    const QRectF target(QPointF((page.width() - fitted.width()) / 2, (page.height() - fitted.height()) / 2), fitted);
    for (int copy = 0; copy < runs; ++copy) {
        if (copy > 0)
            printer.newPage();
        painter.drawImage(target, job.picture);
    }
    return painter.end() ? QString() : QStringLiteral("the job did not complete");
}

} // namespace

PrintInteractionController::PrintInteractionController(QObject *parent)
    : ViewController(parent)
    , m_printers(QPrinterInfo::availablePrinterNames())
{
    m_printers.append(tr("PDF file"));
    const int preferred = int(m_printers.indexOf(QPrinterInfo::defaultPrinterName()));
    m_printerIndex = preferred >= 0 ? preferred : pdfIndex();
    connect(&m_job, &QFutureWatcherBase::finished, this, [this] {
        m_errorString = m_job.result();
        Q_EMIT printingChanged();
        if (!m_errorString.isEmpty())
            AppLog::print(QStringLiteral("Printing failed: ") + m_errorString);
        Q_EMIT printed(m_errorString.isEmpty());
        if (m_errorString.isEmpty() && navigationController())
            navigationController()->dismiss();
    });
}

void PrintInteractionController::setPrinterIndex(int index)
{
    if (index == m_printerIndex || index < 0 || index >= m_printers.size())
        return;
    m_printerIndex = index;
    Q_EMIT printerIndexChanged();
}

void PrintInteractionController::setCopies(int copies)
{
    if (copies == m_copies || copies < 1)
        return;
    m_copies = copies;
    Q_EMIT copiesChanged();
}

void PrintInteractionController::print()
{
    if (isPrinting())
        return;
    Job job { printingItem, jobName, m_printerIndex == pdfIndex() ? QString() : m_printers.at(m_printerIndex),
        pdfFile.isEmpty() ? PhotoAlbum::picturesLocation() + QLatin1Char('/') + jobName + QStringLiteral(".pdf")
                          : pdfFile,
        showsNumberOfCopies ? m_copies : 1 };
    m_job.setFuture(QtConcurrent::run([job = std::move(job)] { return run(job); }));
    Q_EMIT printingChanged();
}

void PrintInteractionController::cancel()
{
    if (!isPrinting() && navigationController())
        navigationController()->dismiss();
}

PrintInteractionController *PrintInteractionController::presentFor(
    const QImage &picture, NavigationController *navigation, const Storyboard *storyboard)
{
    auto *panel = storyboard ? qobject_cast<PrintInteractionController *>(
                      storyboard->instantiate(QStringLiteral("PrintInteractionController")))
                             : nullptr;
    if (!navigation || !panel) {
        delete panel;
        return nullptr;
    }
    panel->jobName = QStringLiteral("PrintingReceipt");
    panel->printingItem = picture;
    panel->showsNumberOfCopies = true;
    navigation->present(panel);
    return panel;
}
