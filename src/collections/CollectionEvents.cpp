/// The events of a collection as one sink receives them.

#include <KzXmlLib10/collections/CXmlCollectionBase.h>

namespace KzXmlLib10 {

void CXmlObjectBase::FireOnCollectionChangeEvent(IEventSink* sink, CXmlCollectionBase* collection) {
    sink->OnEvent(collection->GetBase(), MsgType_CollectionChange, nullptr);
}

void CXmlObjectBase::FireOnCollectionAddEvent(IEventSink* sink, CXmlCollectionBase* collection, void* item) {
    sink->OnEvent(collection->GetBase(), MsgType_CollectionAdd, item);
}

void CXmlObjectBase::FireOnCollectionAddCompleteEvent(IEventSink* sink, CXmlCollectionBase* collection,
                                                      void* item) {
    sink->OnEvent(collection->GetBase(), MsgType_CollectionAddComplete, item);
}

void CXmlObjectBase::FireOnCollectionRemoveEvent(IEventSink* sink, CXmlCollectionBase* collection,
                                                 int index) {
    sink->OnEvent(collection->GetBase(), MsgType_CollectionRemove, index == -1 ? nullptr : &index);
}

void CXmlObjectBase::FireOnCollectionRemoveCompleteEvent(IEventSink* sink, CXmlCollectionBase* collection,
                                                         int index) {
    sink->OnEvent(collection->GetBase(), MsgType_CollectionRemoveComplete, index == -1 ? nullptr : &index);
}

} // namespace KzXmlLib10
