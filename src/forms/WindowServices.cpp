#include "forms/WindowServices.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QWidget>

#include <cmath>

namespace brimo {

namespace {
constexpr double kTwipsPerInch = 1440.0;

double logicalDpi() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInch() : 96.0;
}
} // namespace

int TwipsToPixels(double twips) { return static_cast<int>(std::lround(twips * logicalDpi() / kTwipsPerInch)); }

QRect TwipsRect(double left, double top, double width, double height) {
    return {TwipsToPixels(left), TwipsToPixels(top), TwipsToPixels(width), TwipsToPixels(height)};
}

QSize TwipsSize(double width, double height) { return {TwipsToPixels(width), TwipsToPixels(height)}; }

void PlaceInTwips(QWidget* widget, double left, double top, double width, double height) {
    widget->setGeometry(TwipsRect(left, top, width, height));
}

static double pixelsToTwips(int pixels) { return pixels * kTwipsPerInch / logicalDpi(); }

double ScreenWidthTwips() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? pixelsToTwips(screen->geometry().width()) : 0.0;
}

double ScreenHeightTwips() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? pixelsToTwips(screen->geometry().height()) : 0.0;
}

void CentreOnScreen(QWidget* window) {
    const QSize frame = window->frameGeometry().size();
    const double top = ScreenHeightTwips() / 2 - pixelsToTwips(frame.height()) / 2;
    const double left = ScreenWidthTwips() / 2 - pixelsToTwips(frame.width()) / 2;
    window->move(TwipsToPixels(left), TwipsToPixels(top));
}

void MessageBoxes::ShowInformationBox(const QString& text, const QString& title) const {
    if (answerer_) {
        answerer_({text, title, 4160});
        return;
    }
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok);
    box.setAccessibleDescription(text);
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
}

bool MessageBoxes::AskYesNoCritical(const QString& text, const QString& title) const {
    if (answerer_) return answerer_({text, title, 20});
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Yes | QMessageBox::No);
    box.setAccessibleDescription(text);
    box.setWindowModality(Qt::ApplicationModal);
    return box.exec() == QMessageBox::Yes;
}

} // namespace brimo
