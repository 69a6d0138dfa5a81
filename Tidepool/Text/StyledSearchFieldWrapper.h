#pragma once

#include "Platform/Core/Binding.h"
#include "Tidepool/Text/StyledSearchField.h"

namespace tidepool {

/// A search field with its text bound to `searchText`. Main thread.
class StyledSearchFieldWrapper : public QWidget {
    Q_OBJECT

public:
    StyledSearchFieldWrapper(platform::Binding<QString> searchText, const QString& placeholderString,
                             QWidget* parent = nullptr);

    ~StyledSearchFieldWrapper() override;

    /// Shows what the binding has by now. Call it when somebody else has changed that.
    void updateView();

    StyledSearchField& field() const { return *m_field; }

    Q_INVOKABLE void filterContents(QObject* sender);

private:
    platform::Binding<QString> m_searchText;
    StyledSearchField* m_field;
};

} // namespace tidepool
