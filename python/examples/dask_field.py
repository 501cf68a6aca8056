"""A field of 10^7 enthalpies h(p, T) on a Dask cluster of worker processes.

Each block is one kvtcore.HPT call on the worker that holds it, over every
core of that worker; the result is the same field as one local call.

    python3 dask_field.py
"""
import dask.array as da
import numpy as np
from dask.distributed import Client, LocalCluster

import kvtcore


def main():
    with LocalCluster(n_workers=2, threads_per_worker=1, processes=True) as cluster, \
            Client(cluster) as client:
        p = da.linspace(1e5, 50e6, 1000, chunks=250)[:, None]       # Pa
        T = da.linspace(300.0, 1000.0, 10000, chunks=2500)[None, :]  # K
        h = da.map_blocks(kvtcore.HPT, p, T, dtype=float)            # J/kg, 1000 x 10000
        field = h.compute()
        print(client, field.shape, np.nanmin(field), np.nanmax(field))
        local = kvtcore.HPT(p.compute(), T.compute())
        print("same as a local call:", np.array_equal(field, local))


if __name__ == "__main__":
    main()
