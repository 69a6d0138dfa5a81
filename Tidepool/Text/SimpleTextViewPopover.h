#pragma once

#include "Platform/Controls/Popover.h"
#include "Tidepool/Styles/StyledControlState.h"

#include <QLabel>

#include <memory>
#include <optional>

namespace tidepool {

/// A popover with a text, in the look of `PopoverStyle`.
class SimpleTextViewPopover : public platform::Popover {
    Q_OBJECT

public:
    explicit SimpleTextViewPopover(QObject* parent = nullptr);

    /// Shows the message, none being the empty one, beside the whole of `view`.
    void showMessage(const std::optional<QString>& message, QWidget& view, platform::RectEdge edge);

    void show(const QRect& rect, QWidget& view, platform::RectEdge preferredEdge) override;
    void close() override;

    /// What shows the text. Owned.
    QLabel& contentTextField() const { return *m_text; }

    /// What it was shown for last; null if that has gone, or after `close`.
    QWidget* currentPositioningView() const { return m_currentPositioningView; }

    /// That of the control that the text is about.
    StyledControlState controlState() const { return m_controlState; }

    void setControlState(StyledControlState state) { m_controlState = state; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void takeLook(const QWidget& view);
    void fitText();

    QLabel* m_text;
    QPointer<QWidget> m_currentPositioningView;
    StyledControlState m_controlState = StyledControlState::defaultState;
};

/// Holds a popover for a control that seldom needs it.
class SimpleTextViewPopoverController {
public:
    /// Made on first use. Owned.
    SimpleTextViewPopover& popover();

    /// Shows the message beside the view, or changes what is shown; without one, closes.
    void update(const std::optional<QString>& message, QWidget& view);

    /// False also if there is no popover yet.
    bool isShown() const { return m_popover && m_popover->isShown(); }

private:
    std::unique_ptr<SimpleTextViewPopover> m_popover;
};

} // namespace tidepool
