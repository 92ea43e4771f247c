#pragma once
// The sketch behind the controls of CParamRechTalus: for each frame its
// lines, rectangles and circles, in twips relative to the frame, and a mesh
// of triangles standing for the terrain. It never follows the values.

#include <span>
#include <vector>

namespace brimo {

struct SketchPoint {
    double x, y;
};

struct SketchLine {
    SketchPoint from, to;
    int width; // pixels at 96 DPI
};

enum class SketchShapeKind { Rectangle, Circle };

// A shape drawn inside its bounds; a circle takes the smaller side as its
// diameter and stands centred in them.
struct SketchShape {
    SketchShapeKind kind;
    double left, top, width, height;
    int borderWidth; // pixels at 96 DPI
};

// One row of mesh nodes, left to right.
using MeshRow = std::span<const SketchPoint>;

struct FrameSketch {
    const char* frame;
    std::span<const MeshRow> meshRows; // top to bottom
    std::span<const SketchLine> lines;
    std::span<const SketchShape> shapes;
    const char* description; // what the sketch shows, for screen readers, UTF-8
};

std::span<const FrameSketch> SlopeDiagram();

// The thin lines of a mesh: each node joined to its neighbours in its row,
// and each pair of rows zipped into triangles from left to right.
std::vector<SketchLine> MeshLines(std::span<const MeshRow> rows);

} // namespace brimo
