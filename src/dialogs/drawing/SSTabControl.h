#pragma once
// The tab control of the drawing variables dialog: six tabs, three a row.
// Its tabs place their controls from the control's own corner, tab headers
// included, as the form was drawn. Each tab holds a canvas the size of the
// whole control, moved up and left by the place where the page area
// begins, so that twips positions stay as drawn.

#include "forms/RowTabControl.h"

#include <vector>

namespace brimo {

class SSTabControl : public RowTabControl {
    Q_OBJECT
public:
    explicit SSTabControl(QWidget* parent);
    // Adds a tab; returns the canvas that its controls go on.
    QWidget* addCanvasTab(const QString& pageName, const QString& caption);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void alignCanvases();
    std::vector<QWidget*> canvases_;
};

} // namespace brimo
