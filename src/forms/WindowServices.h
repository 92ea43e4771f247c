#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// What the forms rely on of the window toolkit: twips, centring, the two
// message boxes.

#include <QRect>
#include <QString>

#include <functional>

class QWidget;

namespace brimo {

// Twips to pixels at the screen's logical DPI (15 twips a pixel at 96 DPI).
int TwipsToPixels(double twips);
QRect TwipsRect(double left, double top, double width, double height);
QSize TwipsSize(double width, double height);
// Places a widget by twips inside its parent.
void PlaceInTwips(QWidget* widget, double left, double top, double width, double height);

// Screen size in twips.
double ScreenWidthTwips();
double ScreenHeightTwips();

// Centres the window: Top = screen height / 2 - height / 2, then Left likewise.
void CentreOnScreen(QWidget* window);

struct MessageBoxCall {
    QString text;
    QString title;
    int flags; // 4160 or 20
};

// The message boxes of one form (or of the program's start). Screen readers
// announce both boxes as alerts and read their text.
class MessageBoxes {
public:
    // Tests answer in place of a person: the answerer gets the box and
    // returns true for Yes.
    void setAnswerer(std::function<bool(const MessageBoxCall&)> answerer) { answerer_ = std::move(answerer); }

    // Message box of flags 4160: information icon, one OK button, modal.
    void ShowInformationBox(const QString& text, const QString& title) const;
    // Message box of flags 20: critical icon, Yes and No; true for Yes.
    bool AskYesNoCritical(const QString& text, const QString& title) const;

private:
    std::function<bool(const MessageBoxCall&)> answerer_;
};

} // namespace brimo
