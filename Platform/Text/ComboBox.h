#pragma once

#include "Platform/Text/ComboBoxCell.h"
#include "Platform/Text/TextField.h"

#include <QPersistentModelIndex>
#include <QVariant>

class QAbstractItemModel;

namespace platform {

class ListPopup;

/// A text field that offers values to choose: those of a model's first column, shown as `Qt::DisplayRole` and
/// with `Qt::EditRole` as object values if there is one. The arrow, Down, Alt with Down and F4 open the list;
/// the keyboard stays with the text. The arrow keys show values of the open list in the field, which Escape
/// takes back. What is typed is completed to the first value that begins with it. Main thread.
class ComboBox : public TextField {
    Q_OBJECT

public:
    ~ComboBox() override;

    /// Null for none. Not owned, unless the values were set.
    QAbstractItemModel* model() const { return m_model; }

    void setModel(QAbstractItemModel* model);

    /// Replaces the model by these: texts, numbers.
    void setObjectValues(const QVariantList& values);

    /// The number in the shortest way that gives the same number again.
    void setDoubleValue(double value);

    /// What was chosen, until the text is another; -1 for none.
    int indexOfSelectedItem() const;

    /// Shows the value, and sends nothing.
    void selectItem(int index);

    /// Of the model's first column; invalid if there is no such value.
    QVariant itemObjectValue(int index) const;

    /// On at first.
    bool completes() const { return m_completes; }

    void setCompletes(bool completes) { m_completes = completes; }

    bool isListOpen() const;
    void openList();
    void closeList();

    ComboBoxCell& cell() const { return static_cast<ComboBoxCell&>(TextField::cell()); }

Q_SIGNALS:
    /// By the user, from the list. Precedes the action.
    void itemChosen(int index);

protected:
    ComboBox(std::unique_ptr<ComboBoxCell> cell, QWidget* parent);

    /// Around the time in which the list is open.
    virtual void willPopUp() {}

    virtual void willDismiss() {}

    /// The user has chosen from the list: takes the value for the text and sends the action.
    virtual void selectionDidChange();

    void setUpFieldEditor(FieldEditor& editor) override;
    void firstResponderDidChange() override;
    void textDidChange() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    class List;

    QString titleOf(int index) const;
    bool isOnArrow(QPoint point) const;
    void showValue(const QVariant& value);
    bool takeKey(QKeyEvent& event);
    void complete(FieldEditor& editor);
    int find(const QString& text, Qt::MatchFlag how) const;
    void preview(int index);
    void endPreview();
    void listClosed();
    void choose(int index);

    QPointer<QAbstractItemModel> m_model;
    std::unique_ptr<QAbstractItemModel> m_values; // the model, unless it is another's
    QPersistentModelIndex m_selected;
    QString m_selectedText;
    QPointer<ListPopup> m_list; // since it was opened with this model
    bool m_completes = true;
    bool m_isPassingKeyOn = false;
    bool m_isPreviewing = false; // the editor shows another text than the field's
    bool m_wasModified = false;  // before that
};

} // namespace platform
