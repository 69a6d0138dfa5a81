#include "Gallery/Window/GalleryWindow.h"

#include "Gallery/StyleSet.h"
#include "Gallery/Window/PageList.h"
#include "Gallery/Window/PagePreview.h"
#include "Gallery/Window/SettingsBar.h"

#include "Platform/Windows/WindowAccessibility.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace gallery {

namespace {

/// What a window manager's frame may need, which is not known before the window is shown.
constexpr QSize windowFrame(16, 48);

} // namespace

GalleryWindow::GalleryWindow(const std::vector<GalleryPage>& pages)
    : m_pages(pages), m_list(new PageList(pages)), m_settings(new SettingsBar), m_preview(new PagePreview) {
    resize(QSize(1240, 860).boundedTo(screen()->availableSize() - windowFrame));
    auto* const side = new QVBoxLayout;
    side->setSpacing(0);
    side->addWidget(m_settings);
    side->addWidget(m_preview, 1);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(0);
    platform::installWindowAccessibility();
    row->addWidget(m_list);
    row->addLayout(side, 1);
    addShortcuts();
    connect(m_list, &PageList::currentPageChanged, this, [this](int page) {
        m_current = page;
        showCurrentPage();
    });
    connect(m_settings, &SettingsBar::settingsChanged, this, &GalleryWindow::showCurrentPage);
    m_list->setCurrentPage(0);
}

void GalleryWindow::addShortcuts() {
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, m_list, &PageList::beginSearch);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Quit, this), &QShortcut::activated, this, &QWidget::close);
}

QString GalleryWindow::currentTitle() const {
    return m_pages[static_cast<std::size_t>(m_current)].title;
}

void GalleryWindow::showPage(const QString& title) {
    const auto page = std::find_if(m_pages.begin(), m_pages.end(),
                                   [&](const GalleryPage& known) { return known.title == title; });
    if (page != m_pages.end())
        m_list->setCurrentPage(static_cast<int>(page - m_pages.begin()));
}

void GalleryWindow::showCurrentPage() {
    const GalleryPage& page = m_pages[static_cast<std::size_t>(m_current)];
    const GallerySettings settings = m_settings->settings();
    useAppearance(settings.styleSet);
    setWindowTitle(tr("%1 – Tidepool Gallery").arg(page.title));
    m_settings->showSettingsOf(page);
    m_preview->show(page, settings);
}

} // namespace gallery
