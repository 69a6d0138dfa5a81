#pragma once

#include <QStandardItemModel>
#include <QWidget>

#include <memory>

namespace platform {
class ListPopup;
}

namespace gallery {

/// The open list of a combo box or of a very long menu: with marks, a line, a title, an icon, a disabled row,
/// one under the pointer, and more than is in sight. It cannot be used.
class ListPicture : public QWidget {
    Q_OBJECT

public:
    explicit ListPicture(QWidget* parent = nullptr);
    ~ListPicture() override;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::unique_ptr<QStandardItemModel> m_rows;
    std::unique_ptr<platform::ListPopup> m_list;
};

} // namespace gallery
