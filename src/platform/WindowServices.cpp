#include "platform/WindowServices.h"

#include "platform/WindowsPaths.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
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

namespace {
std::function<bool(const MessageBoxCall&)>& answerer() {
    static std::function<bool(const MessageBoxCall&)> instance;
    return instance;
}
} // namespace

void SetMessageBoxAnswerer(std::function<bool(const MessageBoxCall&)> answererFunction) {
    answerer() = std::move(answererFunction);
}

void ShowInformationBox(const QString& text, const QString& title) {
    if (answerer()) {
        answerer()({text, title, 4160});
        return;
    }
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok);
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
}

bool AskYesNoCritical(const QString& text, const QString& title) {
    if (answerer()) return answerer()({text, title, 20});
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Yes | QMessageBox::No);
    box.setWindowModality(Qt::ApplicationModal);
    return box.exec() == QMessageBox::Yes;
}

bool StartProgram(const QString& windowsPath) {
    const QString program = ToNativePath(windowsPath.trimmed());
    // A Windows program runs through Wine, which takes the prefix from the
    // same WINEPREFIX; where Wine cannot be started, the file is tried as is.
    if (program.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive) &&
        QProcess::startDetached(QStringLiteral("wine"), {program}))
        return true;
    return QProcess::startDetached(program, {});
}

bool FileExists(const QString& windowsPath) { return QFileInfo(ToNativePath(windowsPath)).isFile(); }

} // namespace brimo
