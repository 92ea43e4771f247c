#include "GeneralFormFixture.h"

#include <QAbstractButton>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QTest>

namespace brimo::test {

void GeneralFormTest::SetUp() {
    prefix.writeZorelIni(QStringLiteral("C:\\Zorel"), QStringLiteral("C:\\Zorel\\Var"), QStringLiteral("jo"));
    prefix.makeFolder(QStringLiteral("C:\\Zorel\\Var\\jo"));
    writeLegends(QStringLiteral("FRA"));
    writeLegends(QStringLiteral("DEU"));
    SetMessageBoxAnswerer([this](const MessageBoxCall& call) {
        messages.append(call);
        return false;
    });
    services = std::make_unique<FormServices>();
}

void GeneralFormTest::TearDown() {
    services.reset();
    SetMessageBoxAnswerer(nullptr);
}

void GeneralFormTest::writeLegends(const QString& code, const QMap<int, QString>& texts) {
    QString file;
    for (int n = 1; n <= 174; ++n) file += QStringLiteral("0000 ") + texts.value(n, legend(code, n)) + QStringLiteral("\r\n");
    prefix.write(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_%1.txt").arg(code), file.toLatin1());
}

void GeneralFormTest::removeLegends(const QString& code) {
    QFile::remove(prefix.native(QStringLiteral("C:\\Zorel\\Lang\\ZorelMsg_%1.txt").arg(code)));
}

CGeneralForm* GeneralFormTest::open() {
    services->load();
    return reopen();
}

CGeneralForm* GeneralFormTest::reopen() {
    form = services->show(
        new CGeneralForm(*services, services->info, services->variables, services->legends, *services));
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
    return form;
}

QString GeneralFormTest::captionOf(const QString& name) const {
    QWidget* control = form->findChild<QWidget*>(name);
    if (auto* frame = qobject_cast<QGroupBox*>(control)) return frame->title();
    if (auto* text = qobject_cast<QLabel*>(control)) return text->text();
    if (auto* button = qobject_cast<QAbstractButton*>(control)) return button->text();
    ADD_FAILURE() << "no control with a caption: " << name.toStdString();
    return {};
}

} // namespace brimo::test
