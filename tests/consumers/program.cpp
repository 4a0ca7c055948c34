extern "C" int use();

int main() {
    return use();
}
