#pragma once

#include "Tidepool/Text/StyledSearchFieldCell.h"
#include "Tidepool/Text/StyledTextField.h"

namespace platform {
class Menu;
}

namespace tidepool {

/// The kit's search field. It sends its action whenever the text changes; Escape and the cross take the text
/// away.
class StyledSearchField : public StyledTextField {
    Q_OBJECT

public:
    explicit StyledSearchField(QWidget* parent = nullptr);
    ~StyledSearchField() override;

    StyledSearchFieldCell& cell() const {
        return static_cast<StyledSearchFieldCell&>(StyledTextField::cell());
    }

    /// Whether the action waits for Return, or for the text to be taken away. Off at first.
    bool sendsWholeSearchString() const { return m_sendsWholeSearchString; }

    void setSendsWholeSearchString(bool isWhole) { m_sendsWholeSearchString = isWhole; }

    /// How many searches the menu of the glass remembers; without any, there is none. 0 at first.
    int maximumRecents() const { return m_maximumRecents; }

    void setMaximumRecents(int count);

    /// Latest first. A search counts when Return is pressed, or when the keyboard goes elsewhere.
    const QStringList& recentSearches() const { return m_recentSearches; }

    /// Empty ones and repetitions are left out.
    void setRecentSearches(const QStringList& searches);

    /// Shows the recent searches under the field, if there is room for any.
    void openMenu();

Q_SIGNALS:
    void recentSearchesChanged(const QStringList& searches);

protected:
    bool keyDown(const QKeyEvent& event) override;
    void textDidChange() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    using Part = StyledSearchFieldCell::Part;

    Part partAt(QPointF point) const;
    void remember();
    void fillMenu();
    void search(const QString& text);

    std::unique_ptr<platform::Menu> m_menu;
    QStringList m_recentSearches;
    int m_maximumRecents = 0;
    Part m_pressed = Part::text;
    bool m_sendsWholeSearchString = false;
};

} // namespace tidepool
