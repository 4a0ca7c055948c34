// One program of three libraries, each with its own copy of the value types or with the shared one.
extern "C" int useFirst();
extern "C" int useSecond();
extern "C" int useShared();

int main() {
    return useFirst() + useSecond() + useShared();
}
