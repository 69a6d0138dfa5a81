#pragma once

#include "Chorale/UpdateAvailableDetails.h"
#include "Chorale/ViewScale.h"

#include <QUrl>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QHBoxLayout;

namespace chorale {

class AudioParameter;
class TabButton;

/// The bar across the top of an editor, 46 points high: the maker's logo, the names of an indexed parameter
/// as tabs, the version, a link to an update, and a menu of the plug-in's own. Links open in the desktop's
/// browser.
class PluginHeaderView : public QWidget {
    Q_OBJECT

public:
    /// `menu` is called once, for a widget that the header takes; empty for none. A parameter without value
    /// strings gives no tabs.
    PluginHeaderView(QUrl appUpdateURL, const QString& pluginVersion,
                     std::shared_ptr<AudioParameter> tabParameter,
                     const std::optional<UpdateAvailableDetails>& updateDetails,
                     const std::function<QWidget*()>& menu = {}, QWidget* parent = nullptr);

    /// Shows the link to a version that is found later, or none.
    void setUpdateDetails(const std::optional<UpdateAvailableDetails>& details);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* makeLogoRow();
    QWidget* makeTabRow();
    QWidget* makeTrailingRow(const QString& version, const std::function<QWidget*()>& menu);
    void showTab();

    const QUrl m_appUpdateURL;
    const std::shared_ptr<AudioParameter> m_tabParameter;
    std::vector<TabButton*> m_tabs; // children, by their index
    QHBoxLayout* m_trailing = nullptr;
    QWidget* m_update = nullptr; // the first in it, while there is one
    const qreal m_scale = ViewScale::current();
};

} // namespace chorale
