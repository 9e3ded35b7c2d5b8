#pragma once

#include <KzXmlLib10/object/Export.h>
#include <KzXmlLib10/object/Fwd.h>

#include <cstdint>

namespace KzXmlLib10 {

/// A listener to the events of collections.
class QUILLON_EXPORT IEventSink {
public:
    /// What has happened, and what the data of the event is.
    enum MsgType : std::int32_t {
        MsgType_CollectionChange = 0,         ///< null
        MsgType_CollectionAdd = 1,            ///< the item about to be added
        MsgType_CollectionAddComplete = 2,    ///< the item added
        MsgType_CollectionRemove = 3,         ///< pointer to the int index, or null where there is none
        MsgType_CollectionRemoveComplete = 4, ///< pointer to the int index, or null where there is none
    };

    /// Called on the thread that changes `sender`, while the change is in progress.
    virtual void OnEvent(CXmlObjectBase* sender, MsgType type, void* data) = 0;
    /// The object that implements the sink.
    virtual CXmlObjectBase* GetBase() = 0;

protected:
    ~IEventSink() = default;
};

} // namespace KzXmlLib10
