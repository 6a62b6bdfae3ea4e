// What every Qt program pays before it has anything of its own.
#include <QApplication>
#include <QDialog>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QDialog dialog;
    dialog.setObjectName(u"emptyDialog"_s);
    dialog.resize(540, 491);
    dialog.show();
    return QApplication::exec();
}
