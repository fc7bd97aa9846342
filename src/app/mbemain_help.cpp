// F1: the operator's manual in the browser.

#include "app/manual.h"
#include "app/mbemain.h"
#include "journal/journal.h"

#include <QDesktopServices>
#include <QShortcut>
#include <QUrl>

void MBEMain::setupHelp()
{
    auto* help = new QShortcut(Qt::Key_F1, this);
    help->setAutoRepeat(false);
    connect(help, &QShortcut::activated, this, &MBEMain::showHelp);
}

// The screen stays as it is, whatever becomes of it.
void MBEMain::showHelp()
{
    const QString part
        = tabWidget->currentWidget() == tab_9 ? QStringLiteral("program") : QStringLiteral("chart");
    const QString page
        = manualPage(tr("en", "the language of the manual, which there is in en and ja"), part);
    if (page.isEmpty() || !QDesktopServices::openUrl(QUrl::fromLocalFile(page))) {
        journal->write("no-manual");
    }
}
