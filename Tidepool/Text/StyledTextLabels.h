#pragma once

#include "Tidepool/Text/WidthResizingTextField.h"

namespace tidepool {

/// A cell without a frame, whose style is of class `S`.
template <typename S>
class LabelCell : public RestyledCell<S, StyledTextFieldCell> {
public:
    LabelCell() {
        this->setBezeled(false);
        this->setBordered(false);
    }
};

/// A field that nobody edits, and that draws no frame.
template <typename Field, typename Cell>
class Label : public Field {
public:
    explicit Label(const QString& text = {}, QWidget* parent = nullptr)
        : Field(text, std::make_unique<Cell>(), parent) {
        this->setEditable(false);
    }

    Cell& cell() const { return static_cast<Cell&>(Field::cell()); }
};

class StyledTextLabelCell : public LabelCell<TextLabelCellStyle> {};

class StyledTableRowLabelCell : public LabelCell<TableRowLabelCellStyle> {};

class StyledTableGroupRowLabelCell : public LabelCell<TableGroupLabelCellStyle> {};

/// A text beside a control.
class StyledTextLabel : public Label<StyledTextField, StyledTextLabelCell> {
public:
    using Label::Label;
};

/// A text in a row of a table.
class StyledTableRowLabel : public Label<WidthResizingTextField, StyledTableRowLabelCell> {
public:
    using Label::Label;
};

/// A text in a row of a table that stands above others.
class StyledTableGroupRowLabel : public Label<WidthResizingTextField, StyledTableGroupRowLabelCell> {
public:
    using Label::Label;
};

} // namespace tidepool
