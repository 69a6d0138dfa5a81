#include "Tidepool/Choices/StyledSegmentedControl.h"
#include "Tidepool/Formatters/ConstantNameFormatter.h"
#include "Tidepool/Text/StyledSearchField.h"
#include "Tidepool/Text/StyledTextLabels.h"
#include "tests/desktop/Desktop.h"

#include <QProcess>
#include <QVBoxLayout>

#include <gmock/gmock.h>

using namespace tidepool;
using testing::Contains;

namespace {

/// What assistive technology sees of this program over its bus: role, name, description, text and states.
class AccessibleTreeTest : public testing::Test {
protected:
    AccessibleTreeTest() { m_column = new QVBoxLayout(&m_window); }

    template <typename Control>
    Control& add(Control* control, const QString& name = {}) {
        control->setAccessibleName(name);
        m_column->addWidget(control);
        return *control;
    }

    std::vector<std::string> tree() {
        m_window.show();
        EXPECT_TRUE(Desktop::waitUntil([this] { return m_window.isActiveWindow(); }));
        QProcess reader;
        reader.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        reader.start(QStringLiteral(ACCESSIBLE_TREE), {QStringLiteral("DesktopTest")});
        EXPECT_TRUE(Desktop::waitUntil([&] { return reader.state() == QProcess::NotRunning; }));
        std::vector<std::string> lines;
        for (const QByteArray& line : reader.readAllStandardOutput().split('\n'))
            lines.push_back(line.trimmed().toStdString());
        return lines;
    }

    Desktop m_desktop;
    QWidget m_window;
    QVBoxLayout* m_column;
};

} // namespace

TEST_F(AccessibleTreeTest, TextsAreReadWithAndWithoutAnEditor) {
    add(new StyledTextLabel(QStringLiteral("Attack time")));
    add(new StyledTextField(QStringLiteral("Bass")), QStringLiteral("Name")).setFocus();
    add(new StyledTextField(QStringLiteral("Lead")), QStringLiteral("Other"));
    auto& constant = add(new StyledTextField, QStringLiteral("Constant"));
    constant.setFormatter(std::make_shared<ConstantNameFormatter>());
    constant.replaceText(QStringLiteral("a b"));
    add(new StyledTextField(QStringLiteral("Fixed"))).setEnabled(false);
    add(new StyledSearchField).cell().setPlaceholderString(QStringLiteral("Search presets"));
    const auto lines = tree();
    EXPECT_THAT(lines, Contains("label|Attack time||Attack time|enabled"));
    EXPECT_THAT(lines, Contains("text|Name||Bass|editable focused enabled")) << "the editor";
    EXPECT_THAT(lines, Contains("text|Other||Lead|editable enabled"));
    EXPECT_THAT(lines, Contains("text|Constant|Constant names must only contain A-Z, a-z, 0-9 and the "
                                "characters _ and $|a b|editable enabled"));
    EXPECT_THAT(lines, Contains("text|||Fixed|editable"));
    EXPECT_THAT(lines, Contains("text|Search presets|||editable enabled"));
}

TEST_F(AccessibleTreeTest, SegmentsAreChildren) {
    auto& control = add(new StyledSegmentedControl({QStringLiteral("Keys"), QStringLiteral("List")}),
                        QStringLiteral("View"));
    control.setSelectedSegment(1);
    control.cell().setEnabled(false, 0);
    const auto lines = tree();
    EXPECT_THAT(lines, Contains("radio button|Keys|||"));
    EXPECT_THAT(lines, Contains("radio button|List|||focused checked enabled"));
}
