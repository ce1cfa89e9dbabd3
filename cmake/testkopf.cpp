// Nothing but a place for the precompiled header that the tests of one kind share.
int main() {}
