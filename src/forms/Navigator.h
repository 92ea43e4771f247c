#pragma once
// Window kit (src/forms): what every form uses and nothing that knows a
// particular form; it sees the model and the platform.
//
// How a form reaches the rest of the program: it shows another form by its
// kind, or ends the process. The program's shell implements it; tests hand a
// form one that records.

namespace brimo {

enum class FormKind { Chooser, General, Slope, About, Drawing };

class Navigator {
public:
    virtual ~Navigator() = default;
    // Builds the form if its window is closed (running its Form_Load), or
    // brings the open window forward without Form_Load.
    virtual void Show(FormKind form) = 0;
    // An explicit end: stops the process at once with every window.
    virtual void End(int status) = 0;
};

} // namespace brimo
