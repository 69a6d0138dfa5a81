#include "Noteloft/SparkleHelper.h"

namespace noteloft {

QString SparkleHelper::feedURLStringForUpdater(const platform::SPUUpdater&) {
    return QStringLiteral("https://" NOTELOFT_UPDATE_HOST "/noteloft/noteloft.xml");
}

} // namespace noteloft
