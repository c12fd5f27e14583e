#include "pon/diff_builder.h"

#include <cstdlib>

template <class T>
List<T>::List() = default;

template <class T>
List<T>::~List()
{
    clear();
}

template <class T>
bool List<T>::push_back(T* elem)
{
    auto* const node = static_cast<ListElem<T>*>(std::malloc(sizeof(ListElem<T>)));
    if (!node) {
        return false;
    }
    *node = {elem, nullptr};
    if (last) {
        last->next = node;
    } else {
        first = node;
    }
    last = node;
    ++lsize;
    return true;
}

template <class T>
ListElem<T>* List<T>::begin()
{
    return first;
}

template <class T>
int List<T>::size()
{
    return lsize;
}

template <class T>
void List<T>::clear()
{
    while (first) {
        ListElem<T>* const next = first->next;
        std::free(first);
        first = next;
    }
    last = nullptr;
    lsize = 0;
}

template <class T>
void List<T>::delete_elem(ListElem<T>* node)
{
    ListElem<T>* before = nullptr;
    for (ListElem<T>* at = first; at; before = at, at = at->next) {
        if (at != node) {
            continue;
        }
        (before ? before->next : first) = node->next;
        if (last == node) {
            last = before;
        }
        --lsize;
        std::free(node);
        return;
    }
}

template class List<char>;
