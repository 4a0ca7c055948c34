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

// Items of the lane at turn are handed over in batches, since waking the reader costs more than most items. What the
// lanes after it hold is bounded together, so that a thread which is far ahead waits. Lanes are numbered from 0 and each
// has one writer, and each is started before the ones after it: the lane at turn never waits for one that waits for it.
template <class Item> class OrderedQueue {
public:
    // The number of lanes, and the sum of the sizes that may wait, of the lane at turn and of all others each.
    OrderedQueue(std::size_t count, std::size_t limit) : count(count), limit(limit) {}

    // Waits until there is room, unless the waiting was lifted. The last item of a lane ends it.
    void put(std::size_t number, Item item, std::size_t size, bool isLast) {
        std::unique_lock lock(mutex);
        room.wait(lock, [&] { return isLifted || (number == turn ? lanes[number].size : ahead) < limit; });
        Lane& lane = lanes[number];
        bool const isAwaited = !isWorthTaking();
        lane.items.push_back(std::move(item));
        lane.size += size;
        lane.isEnded = isLast;
        if (isLast) ++ended;
        if (number != turn) ahead += size;
        if (isAwaited && isWorthTaking()) arrived.notify_one();
    }

    // What the lane at turn holds, and those after it as long as each is at its end: as soon as it is much, or all that
    // will ever come, and after so long whatever it is.
    std::vector<Item> take(std::chrono::milliseconds patience) {
        std::unique_lock lock(mutex);
        arrived.wait_for(lock, patience, [this] { return isWorthTaking(); });
        std::vector<Item> items = takeOfTurn();
        while (lanes[turn].isEnded) {
            lanes.erase(turn++);
            ahead -= lanes[turn].size;
            for (Item& item : takeOfTurn()) items.push_back(std::move(item));
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

    bool isWorthTaking() {
        Lane const& lane = lanes[turn];
        return lane.size + (lane.isEnded ? ahead : 0) > limit / 256 || ended == count;
    }

    std::vector<Item> takeOfTurn() {
        lanes[turn].size = 0;
        return std::exchange(lanes[turn].items, {});
    }

    std::mutex mutex;
    std::condition_variable arrived, room;
    std::map<std::size_t, Lane> lanes; // that hold something, or are at turn
    std::size_t count, limit, turn = 0, ahead = 0, ended = 0;
    bool isLifted = false;
};

} // namespace Command
