#include "dialogs/slope/SlopeDiagram.h"

namespace brimo {

namespace {

using enum SketchShapeKind;

// Frame1: the continuous line beside Check1 (the crosses beside Check2 are
// the label Label1(0)).
constexpr SketchLine kFrame1Lines[] = {
    {{468, 351}, {2106, 351}, 1}, // Line1
};

// Frame2: the two legs of the slope ratio.
constexpr SketchLine kFrame2Lines[] = {
    {{240, 720}, {1059, 720}, 1},  // Line2, horizontal, under Text1
    {{1200, 720}, {1200, 1188}, 1}, // Line3, vertical, beside Text2
};

// Frame3: the platform, the slope around it, and the initial search length.
constexpr SketchPoint kFrame3Mesh0[] = {{360, 585},   {850, 620},   {1340, 600},  {1800, 650},
                                        {2250, 700},  {2750, 720},  {3350, 660},  {3984, 600}};
constexpr SketchPoint kFrame3Mesh1[] = {{360, 900},   {1050, 825},  {1401, 825},  {2000, 870},
                                        {2931, 945},  {3450, 900},  {3984, 880}};
constexpr SketchPoint kFrame3Mesh2[] = {{360, 1230},  {700, 1176},  {1401, 1176}, {1800, 1300},
                                        {2200, 1200}, {2700, 1250}, {3300, 1180}, {3984, 1240}};
constexpr SketchPoint kFrame3Mesh3[] = {{360, 1560},  {900, 1480},  {1500, 1560}, {2100, 1500},
                                        {2700, 1560}, {3300, 1500}, {3984, 1580}};
constexpr SketchPoint kFrame3Mesh4[] = {{360, 1880},  {945, 1755},  {1450, 1850}, {1950, 1800},
                                        {2583, 1872}, {3000, 1820}, {3500, 1860}, {3984, 1900}};
constexpr SketchPoint kFrame3Mesh5[] = {{360, 2112},  {850, 2080},  {1350, 2112}, {1850, 2060},
                                        {2350, 2112}, {2850, 2070}, {3400, 2112}, {3984, 2090}};
constexpr MeshRow kFrame3Mesh[] = {kFrame3Mesh0, kFrame3Mesh1, kFrame3Mesh2,
                                   kFrame3Mesh3, kFrame3Mesh4, kFrame3Mesh5};

constexpr SketchLine kFrame3Lines[] = {
    // Line6(0) to Line6(3): the quadrilateral at the top of the slope.
    {{1050, 825}, {2931, 945}, 2},
    {{2931, 945}, {2583, 1872}, 2},
    {{2583, 1872}, {945, 1755}, 2},
    {{945, 1755}, {1050, 825}, 2},
    // Line6(4) to Line6(7): its corners joined to those of the platform.
    {{1050, 825}, {1410, 1050}, 2},
    {{2931, 945}, {2130, 1050}, 2},
    {{2583, 1872}, {2130, 1650}, 2},
    {{945, 1755}, {1410, 1650}, 2},
    // Line5(0) to Line5(2): the dimension from the platform to the top edge.
    {{2115, 1050}, {2115, 468}, 2},
    {{2925, 945}, {2925, 468}, 2},
    {{3048, 585}, {1995, 585}, 2},
};
constexpr SketchShape kFrame3Shapes[] = {
    {Rectangle, 1410, 1050, 720, 600, 3}, // Shape1(0), the platform
};

// Frame4: the circle of the search about a single point and three of its rays.
constexpr SketchLine kFrame4Lines[] = {
    {{585, 933}, {585, 468}, 1}, // Line7(0), numbered 1
    {{585, 933}, {855, 585}, 1}, // Line7(1), numbered 3
    {{585, 933}, {745, 481}, 1}, // Line7(2), numbered 2
};
constexpr SketchShape kFrame4Shapes[] = {
    {Circle, 117, 468, 949, 949, 1}, // Shape2(0)
    {Circle, 416, 741, 351, 364, 1}, // Shape2(1)
};

// Frame5: search lines leaving the top edge of a slope, 117 twips apart.
constexpr SketchPoint kFrame5Mesh0[] = {{234, 468}, {900, 520}, {1560, 480}, {2223, 540}};
constexpr SketchPoint kFrame5Mesh1[] = {{234, 800}, {700, 760}, {1200, 740}, {1700, 800}, {2223, 780}};
constexpr SketchPoint kFrame5Mesh2[] = {{234, 1100}, {585, 1053}, {1100, 1050}, {1650, 1100}, {2223, 1060}};
constexpr SketchPoint kFrame5Mesh3[] = {{351, 1287}, {900, 1330}, {1400, 1300}, {1900, 1350}, {2223, 1320}};
constexpr SketchPoint kFrame5Mesh4[] = {{234, 1600}, {900, 1620}, {1550, 1580}, {2223, 1640}};
constexpr SketchPoint kFrame5Mesh5[] = {{234, 1872}, {900, 1850}, {1550, 1872}, {2223, 1860}};
constexpr MeshRow kFrame5Mesh[] = {kFrame5Mesh0, kFrame5Mesh1, kFrame5Mesh2,
                                   kFrame5Mesh3, kFrame5Mesh4, kFrame5Mesh5};

constexpr SketchLine kFrame5Lines[] = {
    {{351, 1404}, {1989, 1521}, 2}, // Line6(14), the top edge of the slope
    {{936, 1872}, {936, 1404}, 1},  // Line5(4) to Line5(8), the search lines
    {{819, 1872}, {819, 1404}, 1},
    {{1053, 1872}, {1053, 1404}, 1},
    {{1170, 1872}, {1170, 1404}, 1},
    {{1287, 1872}, {1287, 1404}, 1},
    {{1404, 1755}, {585, 1755}, 1}, // Line5(3), across them
};
constexpr SketchShape kFrame5Shapes[] = {
    {Rectangle, 819, 702, 715, 598, 3}, // Shape1(1)
};

constexpr FrameSketch kSlopeDiagram[] = {
    {"Frame1", {}, kFrame1Lines, {},
     "Une ligne continue à côté de la première case et une rangée de croix à côté de la seconde : "
     "le dessin final en polyligne ou en points."},
    {"Frame2", {}, kFrame2Lines, {},
     "Les deux côtés de la pente : la distance horizontale sous le premier champ, "
     "la distance verticale à côté du second."},
    {"Frame3", kFrame3Mesh, kFrame3Lines, kFrame3Shapes,
     "Un rectangle au centre d'un terrain maillé de triangles, entouré du haut du talus ; "
     "sous le champ, une cote du bord du rectangle au haut du talus : la longueur initiale de recherche."},
    {"Frame4", {}, kFrame4Lines, kFrame4Shapes,
     "Le cercle de la recherche autour d'un point, et trois directions de recherche numérotées 1, 2 et 3."},
    {"Frame5", kFrame5Mesh, kFrame5Lines, kFrame5Shapes,
     "Un rectangle sur un terrain maillé ; d'un bord épais partent cinq lignes de recherche, "
     "traversées par une ligne avec le champ à sa gauche : l'espacement des recherches."},
};

} // namespace

std::span<const FrameSketch> SlopeDiagram() { return kSlopeDiagram; }

std::vector<SketchLine> MeshLines(std::span<const MeshRow> rows) {
    std::vector<SketchLine> lines;
    for (const MeshRow& row : rows)
        for (std::size_t i = 1; i < row.size(); ++i) lines.push_back({row[i - 1], row[i], 1});

    // Between two rows, walk both from the left: join the current nodes,
    // then step on in the row whose next node lies further left (the lower
    // row on a tie). Each step closes one triangle.
    for (std::size_t r = 1; r < rows.size(); ++r) {
        const MeshRow upper = rows[r - 1];
        const MeshRow lower = rows[r];
        std::size_t i = 0, j = 0;
        lines.push_back({upper[0], lower[0], 1});
        while (i + 1 < upper.size() || j + 1 < lower.size()) {
            const bool lowerEnded = j + 1 == lower.size();
            const bool upperEnded = i + 1 == upper.size();
            if (upperEnded || (!lowerEnded && lower[j + 1].x <= upper[i + 1].x)) ++j;
            else ++i;
            lines.push_back({upper[i], lower[j], 1});
        }
    }
    return lines;
}

} // namespace brimo
