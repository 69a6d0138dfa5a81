// The headers that most sources include and that change only with the toolchain. Not Qt's collective headers
// of the windows: they bring Qt's OpenGL headers, which ours must precede.
#pragma once

#include <QtCore/QtCore>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QColor>
#include <QDialog>
#include <QEvent>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <QWindow>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
