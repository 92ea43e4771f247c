// One empty dialog: the least a Qt Widgets program does before its first
// window is on the screen.
#include <QApplication>
#include <QDialog>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Minimal dialog"));
    dialog.show();
    return app.exec();
}
