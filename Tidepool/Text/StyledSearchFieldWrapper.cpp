#include "Tidepool/Text/StyledSearchFieldWrapper.h"

#include <QVBoxLayout>

#include <utility>

namespace tidepool {

StyledSearchFieldWrapper::StyledSearchFieldWrapper(platform::Binding<QString> searchText,
                                                   const QString& placeholderString, QWidget* parent)
    : QWidget(parent), m_searchText(std::move(searchText)), m_field(new StyledSearchField) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_field);
    m_field->cell().setPlaceholderString(placeholderString);
    m_field->setAction(platform::Selector{"filterContents"}, this);
    setFocusProxy(m_field);
    updateView();
}

StyledSearchFieldWrapper::~StyledSearchFieldWrapper() {
    delete m_field; // so that it tells nothing more
}

void StyledSearchFieldWrapper::updateView() {
    const QString text = m_searchText.get();
    if (text != m_field->stringValue())
        m_field->setStringValue(text);
}

void StyledSearchFieldWrapper::filterContents(QObject*) {
    m_searchText.set(m_field->stringValue());
}

} // namespace tidepool
