#pragma once

#include "Platform/AudioUnits/AUParameter.h"

#include <QHash>
#include <QList>

#include <memory>

namespace platform {

/// Parameters and groups, in order.
class AUParameterGroup : public AUParameterNode {
public:
    const QList<std::shared_ptr<AUParameterNode>>& children() const { return m_children; }

    /// The parameters of this group and of all groups in it, in the order of the children. Any thread.
    const QList<std::shared_ptr<AUParameter>>& allParameters() const { return m_parameters; }

protected:
    AUParameterGroup(QString identifier, QString displayName,
                     QList<std::shared_ptr<AUParameterNode>> children);

    /// Needs an owner of this group.
    void adoptChildren();

    friend class AUParameterTree;

private:
    QList<std::shared_ptr<AUParameterNode>> m_children;
    QList<std::shared_ptr<AUParameter>> m_parameters;
};

/// All parameters of an audio unit. What it holds does not change, so any thread may look something up.
class AUParameterTree : public AUParameterGroup {
public:
    static std::shared_ptr<AUParameter> createParameter(AUParameterDescription description);

    /// Takes its children out of the group or tree that they were in. Main thread.
    static std::shared_ptr<AUParameterGroup> createGroup(QString identifier, QString displayName,
                                                         QList<std::shared_ptr<AUParameterNode>> children);

    /// Takes its children out of the group or tree that they were in. Main thread.
    static std::shared_ptr<AUParameterTree> createTree(QList<std::shared_ptr<AUParameterNode>> children);

    /// The first parameter in the order of the tree; null if there is none.
    std::shared_ptr<AUParameter> parameterWithAddress(AUParameterAddress address) const;

    /// The first parameter in the order of the tree; null if there is none.
    std::shared_ptr<AUParameter> parameterWithIdentifier(const QString& identifier) const;

private:
    explicit AUParameterTree(QList<std::shared_ptr<AUParameterNode>> children);

    QHash<AUParameterAddress, std::shared_ptr<AUParameter>> m_byAddress;
    QHash<QString, std::shared_ptr<AUParameter>> m_byIdentifier;
};

} // namespace platform
