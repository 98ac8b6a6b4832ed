// What every start is measured by: the least that a program with a window can be.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QMainWindow window;
    window.setObjectName(QStringLiteral("BareWindow"));
    window.resize(750, 600);
    window.show();
    return QApplication::exec();
}
