#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// The base of every form: a modeless dialog without owner, built at its
// design state by its constructor, filled by Form_Load when it is shown.
// A form is handed the services it uses by its constructor, not the whole
// process.

#include "forms/WindowServices.h"

#include <QDialog>

#include <utility>
#include <vector>

namespace brimo {

class BrimoForm : public QDialog {
    Q_OBJECT
public:
    BrimoForm();
    // The load step, run each time the window is built and shown.
    virtual void Form_Load() {}
    // The message boxes that the form and its controls show.
    MessageBoxes& messageBoxes() { return messageBoxes_; }

protected:
    // A fixed single border without minimise and maximise buttons.
    void useFixedBorder();
    // Chains the tab order of the controls by their tab index; returns the
    // control of the lowest index, which takes the focus at opening.
    QWidget* chainTabOrder(std::vector<std::pair<int, QWidget*>> stops);
    // No form has a button bound to Escape: the key closes nothing.
    void keyPressEvent(QKeyEvent* event) override;
    // At the first showing, once the form is built: the keyboard of its
    // groups of option buttons, and the names of its controls for screen
    // readers (a form whose captions change names them again).
    void showEvent(QShowEvent* event) override;
    // Option buttons made after the first showing take the keyboard of
    // their groups.
    void takeInNewControls();

private:
    MessageBoxes messageBoxes_;
    bool groupKeysReady_ = false;
};

} // namespace brimo
