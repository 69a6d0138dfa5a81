#pragma once

#include <QFrame>
#include <QTimer>

class QAbstractItemModel;

namespace platform {

class ListView;

/// Rows of a model in a window that looks like a menu. However many there are, only those in sight cost
/// anything but the look-up of their titles. The window is a child of the view that opens it and closes when
/// that is hidden or disabled. The keyboard stays where it is; what is typed comes here. Main thread.
class ListPopup : public QFrame {
    Q_OBJECT

public:
    /// What a row shows beside its title (`Qt::DisplayRole`), its icon (`Qt::DecorationRole`) and its mark
    /// (`Qt::CheckStateRole`). Rows that are not enabled cannot be chosen.
    enum Role {
        beginsGroup = Qt::UserRole + 100, ///< a Boolean: a line lies above it
        isHeader                          ///< a Boolean: it is the title of those below it
    };

    ListPopup(QAbstractItemModel& model, QWidget& view);
    ~ListPopup() override;

    /// The row under the pointer or the keyboard; -1 for none.
    int currentRow() const;

    /// Brings the row into sight.
    void setCurrentRow(int row);

    /// Whether rows keep room for a mark.
    void setHasMarks(bool hasMarks);

    /// Opens with the current row in place of `place`, or at least beside it, as far as the screen allows.
    /// `place` is in global points.
    void openOver(const QRect& place);

    /// Opens below `place`, or above where there is more room, with at most `rows` in sight.
    void openBeside(const QRect& place, int rows);

    /// True if the key was one to go to a row, to choose one or to close.
    bool handleKey(const QKeyEvent& event);

Q_SIGNALS:
    /// The user has chosen a row; the window is closed, and may be destroyed.
    void chosen(int row);

    /// Whether or not something was chosen, which is told later.
    void closed();

    void currentRowChanged(int row);

protected:
    /// A key that is for nobody here.
    virtual void otherKey(QKeyEvent& event);

    /// Whether a press outside, in global points, does nothing else than to close the window.
    virtual bool isOnlyClosedBy(QPoint press) const;

    bool isChoice(int row) const;

    /// Goes to the next row that can be chosen, from `from` on, which is one of them.
    void step(int from, int by);

    void choose(int row);

    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    friend class ListView;

    int rowCount() const;
    int naturalWidth() const;
    int heightOf(int rows) const;
    int topOfWhole() const;
    QRect frameBeside(const QRect& screen) const;
    QRect frameOver(const QRect& screen) const;
    void rowsChanged();
    void fitToRows();
    void showIn(QRect frame);
    void stepFarther(int by);

    QAbstractItemModel& m_model;
    QWidget& m_view;
    ListView* m_list;
    QTimer m_refit;
    QRect m_place;         // in global points
    int m_rowsInSight = 0; // at most; 0 to open over the place
};

} // namespace platform
