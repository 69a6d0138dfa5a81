// The headers that most sources include and that change only with the toolchain.
#pragma once

#include <QtCore/QtCore>
#include <QtGui/QtGui>
#include <QtWidgets/QtWidgets>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>
