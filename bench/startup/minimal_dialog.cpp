// One dialog with a line of words: the least a Qt Widgets program does
// before its first window with text is on the screen (the words make it
// load a font, as every dialog of the program must).
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QVBoxLayout>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Minimal dialog"));
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(QStringLiteral("Paramètres généraux du dessin"), &dialog));
    dialog.show();
    return app.exec();
}
