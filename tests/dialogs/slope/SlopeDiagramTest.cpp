// The sketch of the slope-toe search dialog: the two meshes have the size
// and reach the form was drawn with, and every element lies in its frame.

#include "dialogs/slope/SlopeControls.h"
#include "dialogs/slope/SlopeDiagram.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <tuple>

namespace brimo {
namespace {

const FrameSketch& sketchOf(const char* frame) {
    const auto sketches = SlopeDiagram();
    return *std::ranges::find_if(sketches, [&](const FrameSketch& s) { return std::strcmp(s.frame, frame) == 0; });
}

const SlopeControl& controlOf(const char* name) {
    const auto controls = SlopeControls();
    return *std::ranges::find_if(controls, [&](const SlopeControl& c) { return std::strcmp(c.name, name) == 0; });
}

bool joins(const SketchLine& line, SketchPoint a, SketchPoint b) {
    auto same = [](SketchPoint p, SketchPoint q) { return p.x == q.x && p.y == q.y; };
    return (same(line.from, a) && same(line.to, b)) || (same(line.from, b) && same(line.to, a));
}

struct MeshCase {
    const char* frame;
    std::size_t lineCount;
    double left, top, right, bottom;
    std::vector<std::pair<SketchPoint, SketchPoint>> mustHave;
};

TEST(SlopeDiagram, MeshesHaveTheirSizeReachAndKnownLines) {
    const MeshCase cases[] = {
        {"Frame3", 111, 360, 585, 3984, 2112, {{{1050, 825}, {1401, 825}}, {{1050, 825}, {1401, 1176}}}},
        {"Frame5", 62, 234, 468, 2223, 1872, {{{351, 1287}, {585, 1053}}}},
    };
    for (const MeshCase& c : cases) {
        SCOPED_TRACE(c.frame);
        const std::vector<SketchLine> mesh = MeshLines(sketchOf(c.frame).meshRows);
        EXPECT_EQ(mesh.size(), c.lineCount);

        double left = 1e9, top = 1e9, right = -1e9, bottom = -1e9;
        std::set<std::tuple<double, double, double, double>> distinct;
        for (const SketchLine& line : mesh) {
            EXPECT_EQ(line.width, 1);
            for (SketchPoint p : {line.from, line.to}) {
                left = std::min(left, p.x), right = std::max(right, p.x);
                top = std::min(top, p.y), bottom = std::max(bottom, p.y);
            }
            const auto [a, b] = std::minmax(line.from, line.to, [](SketchPoint p, SketchPoint q) {
                return std::tie(p.x, p.y) < std::tie(q.x, q.y);
            });
            distinct.insert({a.x, a.y, b.x, b.y});
        }
        EXPECT_EQ(distinct.size(), mesh.size()) << "a mesh line is drawn twice";
        EXPECT_EQ(std::tuple(left, top, right, bottom), std::tuple(c.left, c.top, c.right, c.bottom));
        for (const auto& [a, b] : c.mustHave)
            EXPECT_TRUE(std::ranges::any_of(mesh, [&](const SketchLine& l) { return joins(l, a, b); }))
                << a.x << "," << a.y << " to " << b.x << "," << b.y;
    }
}

TEST(SlopeDiagram, EveryElementLiesInsideItsFrame) {
    for (const FrameSketch& sketch : SlopeDiagram()) {
        SCOPED_TRACE(sketch.frame);
        const SlopeControl& frame = controlOf(sketch.frame);
        ASSERT_EQ(frame.kind, SlopeControlKind::Frame);
        auto inside = [&](double x, double y) { return x >= 0 && y >= 0 && x <= frame.width && y <= frame.height; };
        std::vector<SketchLine> lines = MeshLines(sketch.meshRows);
        lines.insert(lines.end(), sketch.lines.begin(), sketch.lines.end());
        for (const SketchLine& line : lines) {
            EXPECT_TRUE(inside(line.from.x, line.from.y)) << line.from.x << "," << line.from.y;
            EXPECT_TRUE(inside(line.to.x, line.to.y)) << line.to.x << "," << line.to.y;
        }
        for (const SketchShape& shape : sketch.shapes)
            EXPECT_TRUE(inside(shape.left, shape.top) && inside(shape.left + shape.width, shape.top + shape.height));
    }
}

} // namespace
} // namespace brimo
