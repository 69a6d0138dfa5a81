#include "Tidepool/Text/VantorStyledTextField.h"

#include <QVBoxLayout>

#include <utility>

namespace tidepool {

VantorStyledTextField::VantorStyledTextField(const QString& placeholder, platform::Binding<QString> text,
                                             std::shared_ptr<const TextFieldCellStyle> style,
                                             OnEditingChanged onEditingChanged, QWidget* parent)
    : QWidget(parent),
      m_text(std::move(text)),
      m_onEditingChanged(std::move(onEditingChanged)),
      m_field(new StyledTextField) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_field);
    m_field->cell().setPlaceholderString(placeholder);
    m_field->cell().setStyle(std::move(style));
    m_field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_field, &StyledTextField::textChanged, this, &VantorStyledTextField::controlTextDidChange);
    connect(m_field, &StyledTextField::editingEnded, this, &VantorStyledTextField::controlTextDidEndEditing);
    setFocusProxy(m_field);
    updateView();
}

VantorStyledTextField::~VantorStyledTextField() {
    delete m_field; // so that it tells nothing more
}

void VantorStyledTextField::updateView() {
    const QString text = m_text.get();
    if (text != m_field->stringValue())
        m_field->setStringValue(text);
}

void VantorStyledTextField::controlTextDidChange(const QString& text) {
    const QPointer<VantorStyledTextField> self(this);
    m_text.set(text);
    if (self && m_onEditingChanged)
        m_onEditingChanged(true);
}

void VantorStyledTextField::controlTextDidEndEditing() {
    if (m_onEditingChanged)
        m_onEditingChanged(false);
}

} // namespace tidepool
