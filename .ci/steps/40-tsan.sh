# The array interface under ThreadSanitizer: the library and the concurrency
# suite (threads each on an engine of their own, one engine split among
# workers), built with g++ -fsanitize=thread; any reported race fails the step.
need cmake g++ make libgtest-dev libtsan2
cmake --preset tsan && cmake --build build/tsan -j2 --target kvt_threads && ctest --preset tsan
