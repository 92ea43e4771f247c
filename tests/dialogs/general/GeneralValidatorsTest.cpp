// The leaving rules of the fields, driven as a user drives them: focus on the
// field, type, press Tab. Built twice: under a point-decimal locale and under
// a comma-decimal one (BRIMO_DECIMAL_COMMA).
#include "GeneralFormFixture.h"

#include <QLineEdit>
#include <QLocale>
#include <QTabWidget>
#include <QTest>

namespace brimo::test {
namespace {

struct Typing {
    const char* field;
    const char* typed; // UTF-8; empty: the text is deleted
    const char* after; // the field's text once the focus has left
    bool refused;
};

#ifndef BRIMO_DECIMAL_COMMA
const Typing kTypings[] = {
    {"Val0", "", "860", false},
    {"Val0", " ", " ", true},
    {"Val0", "abc", "abc", true},
    {"Val4", "", "CADRE", false},
    {"Val6", "", "0.7", false},
    {"Text1", "", "ROMANS", false},
    {"Val7", ".5", "0.5", false},
    {"Val7", ".50", "0.5", false},
    {"Val7", ".", ".", true},
    {"Val7", ".5x", ".5x", true},
    {"Val7", "-.5", "0.5", false},
    {"Val7", " .5", " .5", false},
    {"Val5", "-12", "-12", false},
    {"Val5", ".5", "0.5", false},
    {"Val5", "-.5", "-.5", false},
    {"Text5", ".5", ".5", false},
    {"Val3", "2.50", "2.50", false},
    {"Val3", "-2.50", "2.5", false},
    {"Val3", "-0", "-0", false},
    {"Text5", "255", "255", false},
    {"Text5", "255.5", "1", false},
    {"Text8", "300", "4", false},
    {"Text10", "-300", "6", false},
    {"Val2", "256", "256", false},
    {"Val2", "256.5", "255", false},
    {"Val2", "-300", "255", false},
    {"Val2", "2.5", "2.5", false},
    {"Text19", "257", "255", false},
    {"Val7", "1e39", "1e39", false},
    {"Text6", "1e39", "2", false},
    {"Val5", "1e400", "1e400", false},
    {"Text19", "1e400", "255", false},
    {"Val7", "2,5", "2,5", false}, // a comma groups digits here
    {"Val15", "Bureau \"Nord\"", "Bureau \"Nord\"", false},
};
#else
const Typing kTypings[] = {
    {"Val6", "", "0,7", false},
    {"Val7", "", "1,5", false},
    {"Val1", "", "1600", false},
    {"Val7", "2,5", "2,5", false},
    {"Val7", "2.5", "2.5", false}, // a point groups digits here
    {"Val7", "-2,50", "2,5", false},
    {"Val7", ".5", ".5", true},
    {"Val3", "abc", "abc", true},
    {"Text5", "255,5", "1", false},
    {"Val2", "256,5", "255", false},
    {"Val5", "-1,25", "-1,25", false},
};
#endif

class GeneralValidatorsTest : public GeneralFormTest {};

TEST_F(GeneralValidatorsTest, RegionalDecimalSymbolIsTheOneThisProgramWasBuiltFor) {
#ifdef BRIMO_DECIMAL_COMMA
    EXPECT_EQ(QLocale::system().decimalPoint(), ",");
#else
    EXPECT_EQ(QLocale::system().decimalPoint(), ".");
#endif
}

TEST_F(GeneralValidatorsTest, LeavingAFieldRepairsOrRefusesItsText) {
    open();
    auto* tabs = find<QTabWidget>("SSTab1");
    for (const Typing& typing : kTypings) {
        SCOPED_TRACE(std::string(typing.field) + " <- '" + typing.typed + "'");
        auto* field = find<QLineEdit>(typing.field);
        for (int tab = 0; tab < tabs->count(); ++tab)
            if (tabs->widget(tab)->isAncestorOf(field)) tabs->setCurrentIndex(tab);
        field->setFocus();
        ASSERT_EQ(QApplication::focusWidget(), field);
        EXPECT_EQ(field->selectedText(), field->text()) << "the entry selects the whole text";
        const QString typed = QString::fromUtf8(typing.typed);
        if (typed.isEmpty()) QTest::keyClick(field, Qt::Key_Delete);
        else QTest::keyClicks(field, typed);
        ASSERT_EQ(field->text(), typed);
        messages.clear();

        QTest::keyClick(field, Qt::Key_Tab);

        EXPECT_EQ(field->text(), QString::fromUtf8(typing.after));
        if (typing.refused) {
            ASSERT_EQ(messages.size(), 1);
            EXPECT_EQ(messages[0].text, legend("FRA", 166));
            EXPECT_EQ(messages[0].title, legend("FRA", 167));
            EXPECT_EQ(messages[0].flags, 4160);
            EXPECT_EQ(QApplication::focusWidget(), field);
            EXPECT_EQ(field->selectedText(), typed);
            field->setText(QStringLiteral("1")); // leave it sound for the next row
        } else {
            EXPECT_TRUE(messages.isEmpty());
            EXPECT_NE(QApplication::focusWidget(), field);
        }
        find<QWidget>("cmdOK")->setFocus();
    }
    EXPECT_TRUE(ends().isEmpty());
}

} // namespace
} // namespace brimo::test
