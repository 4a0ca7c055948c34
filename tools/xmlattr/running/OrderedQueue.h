// Hands what several threads make, lane by lane, to one thread in the order of the lanes.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

namespace Command {

// The lane whose turn it is has the reader's ear: what is put there is taken soon. What the lanes after it hold is
// bounded together, so that a thread which is far ahead waits. Lanes are numbered from 0 and each has one writer,
// and each is started before the ones after it: the lane at turn never waits for one that waits for it.
template <class Item> class OrderedQueue {
public:
    // The sum of the sizes that may wait, of the lane at turn and of all others each.
    explicit OrderedQueue(std::size_t limit) : limit(limit) {}

    // Waits until there is room, unless the waiting was lifted. The last item of a lane ends it.
    void put(std::size_t number, Item item, std::size_t size, bool isLast) {
        std::unique_lock lock(mutex);
        room.wait(lock, [&] { return isLifted || (number == turn ? lanes[number].size : ahead) < limit; });
        Lane& lane = lanes[number];
        lane.items.push_back(std::move(item));
        lane.size += size;
        lane.isEnded = isLast;
        if (number != turn)
            ahead += size;
        else if (lane.items.size() == 1)
            arrived.notify_one();
    }

    // What the lane at turn holds; empty when nothing arrived for so long.
    std::vector<Item> take(std::chrono::milliseconds patience) {
        std::unique_lock lock(mutex);
        if (!arrived.wait_for(lock, patience, [this] { return !lanes[turn].items.empty(); })) return {};
        Lane& lane = lanes[turn];
        std::vector<Item> items = std::exchange(lane.items, {});
        lane.size = 0;
        if (lane.isEnded) {
            lanes.erase(turn++);
            ahead -= lanes[turn].size;
        }
        lock.unlock();
        room.notify_all();
        return items;
    }

    // From now on nothing waits for room.
    void lift() {
        {
            std::scoped_lock const lock(mutex);
            isLifted = true;
        }
        room.notify_all();
    }

private:
    struct Lane {
        std::vector<Item> items;
        std::size_t size = 0;
        bool isEnded = false;
    };

    std::mutex mutex;
    std::condition_variable arrived, room;
    std::map<std::size_t, Lane> lanes; // that hold something, or are at turn
    std::size_t limit, turn = 0, ahead = 0;
    bool isLifted = false;
};

} // namespace Command
