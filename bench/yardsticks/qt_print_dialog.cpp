// The yardstick of the whole program: Qt's own print dialog, which asks the print
// server for its queues and reads the default one's PPD.
#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QPrinter printer;
    QPrintDialog dialog(&printer);
    if (printer.printerName().isEmpty()) {
        std::fputs("qt_print_dialog: the print server names no default queue\n", stderr);
        return 1;
    }
    dialog.setObjectName(u"qtPrintDialog"_s);
    dialog.show();
    return QApplication::exec();
}
