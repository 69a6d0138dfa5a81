#include "Platform/Windows/ApplicationIcon.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Graphics/Bitmap.h"

#include <QApplication>
#include <QFile>
#include <QIcon>

namespace platform {

void useApplicationIcon() {
    if (!QApplication::windowIcon().isNull())
        return;
    const QString file = Bundle::main().path(u"Icons/" + QCoreApplication::applicationName() + u".png");
    if (QFile::exists(file))
        QApplication::setWindowIcon(QPixmap::fromImage(readBitmap(file)));
}

} // namespace platform
